// A translation by settings that no option makes.

#include "Convert.h"

#include "Reset.h"
#include "SourceFiles.h"

constexpr int kInterfaceC = 1; // reserved

class Conversion : public SourceFiles {
protected:
  void SetUp() override {
    SourceFiles::SetUp();
    ProgramReset();
    program_name = "kivuxl";
    interface_type = kInterfaceC;
    verbose = 2;
  }

  void TearDown() override {
    ProgramReset();
    SourceFiles::TearDown();
  }

  // What a run that fails prints before.
  static std::string ProgressOf(const char *filename) {
    testing::internal::CaptureStdout();
    ErrorsOf([filename] { EXPECT_EQ(Convert(filename), 0); });
    return testing::internal::GetCapturedStdout();
  }
};

TEST_F(Conversion, ProgressInsideCIsAComment) {
  Put("main.uil", "module m");
  output_filename = "-";
  EXPECT_EQ(ProgressOf("none.uil"), "/* Converting file none.uil (output on standard output) */\n");
  listing_filename = "main.lis";
  EXPECT_EQ(ProgressOf("main.uil"), "/* Converting file main.uil (output on standard output) */\n"
                                    "/* Writing listing file main.lis */\n");
}

TEST_F(Conversion, ProgressOutsideCIsNone) {
  Put("main.uil", "module m");
  EXPECT_EQ(ProgressOf("none.uil"), "Converting file none.uil\n");
  output_filename = "m.ada";
  listing_filename = "main.lis";
  EXPECT_EQ(ProgressOf("main.uil"), "Converting file main.uil to m.ada\n"
                                    "Writing listing file main.lis\n");
}

TEST_F(Conversion, SuccessIsOne) {
  Put("main.uil", "module m\nend module;\n");
  verbose = 0;
  EXPECT_EQ(Convert("main.uil"), 1);
  EXPECT_TRUE(std::filesystem::exists("m_uil.ads"));
}

// "-" is no name that -main takes.
TEST_F(Conversion, MainProgramOnStandardOutputIsToldInAComment) {
  no_uil = true;
  emit_main = true;
  main_file = "-";
  main_filename = "m_main";
  outdir = "missing";
  EXPECT_EQ(ProgressOf(nullptr),
            "/* Creating main program m_main (output on standard output) */\n");
}
