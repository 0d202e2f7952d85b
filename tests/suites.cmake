# Read by ctest when it starts: one test for each suite of the unit tests, as their program lists them.
# Set before: unit_tests, the program's path, and unit_environment, a variable for its runs.

execute_process(COMMAND ${unit_tests} --gtest_list_tests TIMEOUT 60
                OUTPUT_VARIABLE listing RESULT_VARIABLE status)
string(REGEX MATCHALL "(^|\n)[A-Za-z0-9_/]+\\." suites "${listing}")
if(NOT status EQUAL 0 OR NOT suites)
  # Not built, or it crashes before its first test.
  add_test(unit ${unit_tests} --gtest_list_tests)
  set_tests_properties(unit PROPERTIES LABELS "unit;quick" FAIL_REGULAR_EXPRESSION ".*")
endif()
foreach(suite IN LISTS suites)
  string(REGEX REPLACE "[\n.]" "" suite "${suite}")
  add_test(unit.${suite} ${unit_tests} --gtest_filter=${suite}.*)
  set_tests_properties(unit.${suite} PROPERTIES
    LABELS "unit;quick" TIMEOUT 300 ENVIRONMENT "${unit_environment}")
endforeach()
