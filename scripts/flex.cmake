# Runs flex and fails on its warnings too; a file made under a warning is removed, so that the next
# build says it again.  Usage: cmake -DFLEX=program -DINPUT=file -DOUTPUT=file -P flex.cmake

execute_process(COMMAND ${FLEX} -o ${OUTPUT} ${INPUT}
                RESULT_VARIABLE status ERROR_VARIABLE messages)
if(NOT status EQUAL 0 OR NOT messages STREQUAL "")
  file(REMOVE ${OUTPUT})
  message(FATAL_ERROR "flex ${INPUT}: status ${status}\n${messages}")
endif()
