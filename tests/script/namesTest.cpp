// How texts reach forms, controls, shared variables and bytes.

#include "bench/frmHard.h"
#include "script/names.h"
#include "shell/frmMDI.h"
#include "support/program.h"

namespace zelvs {
namespace {

class NamesTest : public ProgramTest {
 protected:
  NamesTest() { start(); }
};

TEST_F(NamesTest, ATargetIsAFormOrAControl) {
  Target target;
  EXPECT_EQ(findTarget("frmHard", target), "");
  EXPECT_EQ(target.form, frmHard.get());
  EXPECT_EQ(target.control, nullptr);
  EXPECT_EQ(findTarget("frmMDI.lblVersion", target), "");
  EXPECT_EQ(target.form, frmMDI.get());
  EXPECT_EQ(target.control, &frmMDI->lblVersion);
  EXPECT_EQ(findTarget("frmHard.picPI(0x3)", target), "");
  EXPECT_EQ(target.control, &frmHard->picPI(3));
}

TEST_F(NamesTest, WhatNamesNothingFindsNothing) {
  const char* const table[] = {"",
                               ".",
                               "frmHard.",
                               ".picNoise",
                               "frmHard(0)",
                               "frmHard.picPI(3).Tag",
                               "frmHard.picPI(3)x",
                               "frmHard.picPI()",
                               "frmHard.picPI(3",
                               "frmHard.picPI(1000001)"};
  for (const char* text : table) {
    Target target;
    EXPECT_EQ(findTarget(text, target), "not a target: " + std::string(text));
    EXPECT_EQ(target.form, nullptr) << text;
  }
  Target target;
  EXPECT_EQ(findTarget("frmHard.picPI(-3)", target), "frmHard.picPI(-3) is not there");
  EXPECT_EQ(target.form, nullptr) << "not even the form";
}

TEST_F(NamesTest, AVariableIsFoundWithItsPlace) {
  VariablePlace place;
  EXPECT_EQ(findVariable("boardDo(4)", place), "");
  EXPECT_EQ(place.variable->name, "boardDo");
  EXPECT_EQ(place.index, 4);
  EXPECT_EQ(findVariable("runMode", place), "");
  EXPECT_EQ(place.variable->name, "runMode");
  EXPECT_EQ(place.index, 0);
  EXPECT_EQ(findVariable("registerLowShown(0)", place), "registerLowShown(0) is not there") << "its first one is 1";
  EXPECT_EQ(findVariable("registerLowShown(9)", place), "registerLowShown(9) is not there");
  EXPECT_EQ(place.variable->name, "runMode") << "what was found before stays";
}

TEST_F(NamesTest, BytesAreAllThere) {
  int first = -1;
  EXPECT_EQ(findBytes("0x7FE", 2, first), "");
  EXPECT_EQ(first, 0x7FE);
  const std::string outside = "outside chip memory (0x000 to 0x7FF): ";
  EXPECT_EQ(findBytes("0x7FF", 2, first), outside + "0x7FF");
  EXPECT_EQ(findBytes("-1", 1, first), outside + "-1");
  EXPECT_EQ(findBytes("0", 0, first), outside + "0");
  EXPECT_EQ(findBytes("0", 0x801, first), outside + "0");
  EXPECT_EQ(first, 0x7FE);
}

TEST_F(NamesTest, AFormThatIsNotLoadedIsOnlyNotVisible) {
  Value value = Value::ofNumber(7);
  EXPECT_EQ(look("frmVersion.Caption", value), "frmVersion is not loaded");
  EXPECT_EQ(value.number, 7);
  EXPECT_EQ(look("frmVersion.Visible", value), "");
  EXPECT_EQ(value.printed(), "False");
}

}  // namespace
}  // namespace zelvs
