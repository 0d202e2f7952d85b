// Names of packages and files.

#include "Filename.h"

#include <vector>

#include "SourceFiles.h"

class Filename : public SourceFiles {
protected:
  void SetUp() override {
    SourceFiles::SetUp();
    FilenameReset();
  }
  void TearDown() override {
    FilenameReset();
    SourceFiles::TearDown();
  }

  static std::string OverrideOf(const char *output) {
    FilenameReset();
    output_filename = output;
    SetOverrideName();
    return override_name.value_or("(none)");
  }

  static std::string BaseOf(const char *output) {
    OverrideOf(output);
    SetPackageBaseName();
    return package_base;
  }

  static std::string BaseOfModule(const char *module) {
    FilenameReset();
    module_name = module;
    SetPackageBaseName();
    return package_base;
  }

  using Namer = void(std::string &, std::string_view, std::string_view, std::string_view);
  static std::string Named(Namer *namer, std::string_view dir, std::string_view base,
                           std::string_view word) {
    std::string path = "old";
    namer(path, dir, base, word);
    return path;
  }
};

TEST_F(Filename, OverrideComesFromTheOutputOption) {
  SetOverrideName();
  EXPECT_FALSE(override_name.has_value());
  EXPECT_EQ(OverrideOf(""), "(none)");
  EXPECT_EQ(OverrideOf("-"), "(none)");
  EXPECT_EQ(OverrideOf("-/x"), "(none)");
  EXPECT_EQ(OverrideOf("app"), "app_uil");
  EXPECT_EQ(OverrideOf("app.x.ads"), "app_uil");
  EXPECT_EQ(OverrideOf("app_uil.ads"), "app_uil");
  EXPECT_EQ(OverrideOf("appUIL"), "appUIL");
  EXPECT_EQ(OverrideOf("uil"), "uil");
  EXPECT_EQ(OverrideOf("il"), "il_uil");
  EXPECT_EQ(OverrideOf("d.e/.x"), "_uil");
}

TEST_F(Filename, OverrideLeavesTheDirectoryInTheOption) {
  EXPECT_EQ(OverrideOf("a/b/app.ads"), "app_uil");
  EXPECT_EQ(output_filename, "a/b");
  EXPECT_EQ(OverrideOf("/app"), "app_uil");
  EXPECT_EQ(output_filename, "");
  EXPECT_EQ(OverrideOf("app.ads"), "app_uil");
  EXPECT_EQ(output_filename, "app.ads");
}

TEST_F(Filename, BaseFromTheOutputOption) {
  module_name = "hello";
  EXPECT_EQ(BaseOf("app.ads"), "app");
  EXPECT_EQ(BaseOf("app_uil.ads"), "app");
  EXPECT_EQ(BaseOf("appuil"), "appuil");
  EXPECT_EQ(BaseOf("App_UIL"), "App");
  EXPECT_EQ(BaseOf("_uil"), "_uil");
  EXPECT_EQ(BaseOf("x_uil"), "x");
  EXPECT_EQ(BaseOf("my-app"), "my-app");
  EXPECT_EQ(BaseOf("-"), "hello");
}

TEST_F(Filename, BaseFromTheModule) {
  EXPECT_EQ(BaseOfModule("Hello"), "hello");
  EXPECT_EQ(BaseOfModule("Hello_UIL"), "hello");
  EXPECT_EQ(BaseOfModule("a$b__c"), "a_b_c");
  EXPECT_EQ(BaseOfModule(nullptr), "");
}

TEST_F(Filename, SuffixIsAddedOnce) {
  EXPECT_EQ(SetNameWithSuffix("hello", "_uil"), "hello_uil");
  EXPECT_EQ(SetNameWithSuffix("hello_UIL", "_uil"), "hello_UIL");
  EXPECT_EQ(SetNameWithSuffix("_uil", "_uil"), "_uil_uil");
  EXPECT_EQ(SetNameWithSuffix("", "x"), "x");
  EXPECT_EQ(SetNameWithSuffix("a", ""), "a");
}

TEST_F(Filename, PackageNames) {
  EXPECT_EQ(PackageName("hello", "uil"), "hello_uil");
  EXPECT_EQ(PackageName("hello", ""), "hello");
}

TEST_F(Filename, FileNames) {
  EXPECT_EQ(Named(SpecFileName, "", "hello", "uil"), "hello_uil.ads");
  EXPECT_EQ(Named(BodyFileName, "", "hello", "uil"), "hello_uil.adb");
  EXPECT_EQ(Named(MainFileName, "", "hello_main", ".adb"), "hello_main.adb");
  EXPECT_EQ(Named(SpecFileName, "out", "hello", ""), "out/hello.ads");
  EXPECT_EQ(Named(BodyFileName, "out/", "hello", "callbacks"), "out//hello_callbacks.adb");
  EXPECT_EQ(Named(MainFileName, "out", "hello_main", ".adb"), "out/hello_main.adb");
}

TEST_F(Filename, OneSuffixForSpecAndBody) {
  spec_sfx = ".ada";
  body_sfx = ".ada";
  EXPECT_EQ(Named(SpecFileName, "", "hello", "uil"), "hello_uil.ada");
  EXPECT_EQ(Named(BodyFileName, "", "hello", "uil"), "hello_uil_b.ada");
  EXPECT_EQ(Named(MainFileName, "", "hello_main", ".ada"), "hello_main_b.ada");
  EXPECT_EQ(Named(MainFileName, "", "hello_main", ".adb"), "hello_main.adb");
}

TEST_F(Filename, SuffixesThatDifferInCaseAreTwo) {
  spec_sfx = ".a";
  body_sfx = ".A";
  EXPECT_EQ(Named(SpecFileName, "", "hello", "uil"), "hello_uil.a");
  EXPECT_EQ(Named(BodyFileName, "", "hello", "uil"), "hello_uil.A");
  EXPECT_EQ(Named(MainFileName, "", "hello_main", ".A"), "hello_main.A");
}

TEST_F(Filename, NamesMayBeOfAnyLength) {
  const std::string dir(1000, 'd');
  EXPECT_EQ(Named(SpecFileName, dir, "hello", "uil"), dir + "/hello_uil.ads");
}
