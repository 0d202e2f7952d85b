// Messages that no source and no command line of an ordinary run provokes.

#include <sched.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <string>

#include <gtest/gtest.h>

#include "Expression.h"
#include "Initialize.h"
#include "Output.h"
#include "ParseModule.h"
#include "Parser.h"
#include "Reset.h"
#include "SourceFiles.h"

class Messages : public SourceFiles {
protected:
  void SetUp() override {
    ProgramReset();
    SourceFiles::SetUp();
  }
  void TearDown() override {
    ProgramReset();
    SourceFiles::TearDown();
  }
};

TEST_F(Messages, SyntaxErrorsAreReportedByTheGrammarOnly) {
  EXPECT_EQ(ErrorsOf([] { yyerror("syntax error"); }), "");
  EXPECT_EQ(ErrorsOf([] { yyerror("parse error"); }), "");
  EXPECT_EQ(Report(), "");
}

TEST_F(Messages, ParserGivesFileAndLineOfItsOwnFailures) {
  Put("m.uil", "");
  ASSERT_NE(FilesOpen("m.uil", false), nullptr);
  yylineno = 7;
  EXPECT_EQ(ErrorsOf([] { yyerror("memory exhausted"); }), "m.uil(7): parser stack overflow\n");
  EXPECT_EQ(ErrorsOf([] { yyerror("anything else"); }), "m.uil(7): anything else\n");
}

TEST_F(Messages, ComplementOfAFloatIsNotDefined) {
  NumberValue operand{};
  operand.kind = FLOAT_NUMBER;
  operand.value.float_v = 1.5;
  NumberValue result{};
  UnaryNotExpression(&result, operand);
  EXPECT_EQ(Report(), "(0): \n   error: Operator ~ not defined for type of expression\n\n");
}

TEST_F(Messages, ModuleNameThatIsTaken) {
  ASSERT_TRUE(NamesTableInit());
  auto *procedure = ModelNew<ProcedureName>(PROCEDURE_NAME);
  procedure->name = "Other.Name";
  ASSERT_TRUE(RegisterAdaName(procedure, "%s %s"));
  YYSTYPE result;
  SymbolValue name{};
  name.kind = SYMBOL;
  name.name = "OTHER_NAME";
  ModuleHeader(&result, name);
  EXPECT_EQ(Report(), "(0): \n   error: Cannot use OTHER_NAME as module name because it conflicts "
                      "with Other.Name\n\n");
  EXPECT_STREQ(module_name, "OTHER_NAME");
}

// Only in a tree without the system's own directory is there none that can be taken.
TEST_F(Messages, NoDirectoryForTemporaryFiles) {
  unsetenv("TMPDIR");
  constexpr int kNotAllowed = 77;
  const pid_t child = fork();
  ASSERT_GE(child, 0);
  if (child == 0) {
    const bool redirected = std::freopen("complaint", "w", stderr) != nullptr;
    if (!redirected || (chroot(".") != 0 && (unshare(CLONE_NEWUSER) != 0 || chroot(".") != 0))) {
      _exit(kNotAllowed);
    }
    OutputSlot slot;
    const int made = MakeTemporaryFile("none", "kivut", &slot.name, &slot.stream);
    std::fflush(stderr);
    _exit(made);
  }
  int status = 0;
  ASSERT_EQ(waitpid(child, &status, 0), child);
  ASSERT_TRUE(WIFEXITED(status));
  if (WEXITSTATUS(status) == kNotAllowed) {
    GTEST_SKIP() << "the root directory cannot be changed here";
  }
  EXPECT_EQ(WEXITSTATUS(status), 0);
  EXPECT_EQ(Contents("complaint"), "kivuxl: Error creating temporary file name.\n");
}
