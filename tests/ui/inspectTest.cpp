// What the script sees of controls and forms.

#include <limits>
#include <string>

#include "support/bitmap.h"
#include "support/program.h"
#include "ui/controls.h"
#include "ui/inspect.h"
#include "ui/timer.h"

namespace zelvs {
namespace {

class FrmZoo final : public Form {
 public:
  static constexpr FormKind kKind = FormKind::Window;
  FrmZoo() : Form("frmZoo", kKind, Border::Fixed) {
    addMember("dialogResult", &dialogResult);
    addMember("editedText", &editedText);
  }
  ImageList ilsLED_G{"ilsLED_G", 2};
  Label lblText{this, "lblText"};
  PictureBox picLamp{this, "picLamp"};
  Image imgBelt{this, "imgBelt"};
  Line linCable{this, "linCable"};
  Shape shpMark{this, "shpMark"};
  Frame fraGroup{this, "fraGroup"};
  TextBox txtField{this, "txtField"};
  CommandButton cmdPush{this, "cmdPush"};
  CheckBox chkMark{this, "chkMark"};
  OptionButton optMark{this, "optMark"};
  ComboBox cmbRows{this, "cmbRows"};
  ListBox lstRows{this, "lstRows"};
  TabStrip tabPages{this, "tabPages"};
  Timer timBeat{this, "timBeat"};
  Sound mmcSound{this, "mmcSound"};
  std::int16_t dialogResult = -7;
  std::string editedText = "0F";
};
FormRef<FrmZoo> frmZoo{"frmZoo"};

class InspectTest : public ProgramTest {
 protected:
  FrmZoo& zoo() { return *frmZoo; }
  std::string look(const Control& control, std::string_view property, std::optional<int> row = std::nullopt) {
    const std::optional<Value> value = inspect(control, property, row);
    return value ? value->printed() : "nothing";
  }
  std::string look(const Form& form, std::string_view property) {
    const std::optional<Value> value = inspect(form, property);
    return value ? value->printed() : "nothing";
  }
};

TEST_F(InspectTest, EveryKindHasTheCommonProperties) {
  for (Control* control : zoo().controls()) {
    SCOPED_TRACE(control->name());
    control->Tag = "1";
    control->Visible = false;
    control->Enabled = true;
    control->Caption = "\"quoted\"\r\n";
    control->ForeColor = kRed;
    control->BackColor = 0xFF0000;
    control->move(15, -30, 1.5, 0);
    control->ToolTipText = "tip";
    control->MousePointer = kCustomPointer;
    EXPECT_EQ(look(*control, "Tag"), "\"1\"");
    EXPECT_EQ(look(*control, "Visible"), "False");
    EXPECT_EQ(look(*control, "Enabled"), "True");
    EXPECT_EQ(look(*control, "Caption"), R"("\"quoted\"\r\n")");
    EXPECT_EQ(look(*control, "ForeColor"), "255");
    EXPECT_EQ(look(*control, "BackColor"), "16711680");
    EXPECT_EQ(look(*control, "Left"), "15");
    EXPECT_EQ(look(*control, "Top"), "-30");
    EXPECT_EQ(look(*control, "Width"), "1.5");
    EXPECT_EQ(look(*control, "Height"), "0");
    EXPECT_EQ(look(*control, "ToolTipText"), "\"tip\"");
    EXPECT_EQ(look(*control, "MousePointer"), "99");
    EXPECT_EQ(look(*control, "MouseIcon"), "none");
    EXPECT_EQ(look(*control, "tag"), "nothing") << "names are case-sensitive";
    EXPECT_EQ(look(*control, ""), "nothing");
    EXPECT_EQ(look(*control, "Tag", 0), "nothing") << "a Tag takes no row";
  }
}

TEST_F(InspectTest, EachKindHasItsOwnProperties) {
  FrmZoo& form = zoo();
  form.picLamp.MouseIcon = form.ilsLED_G.image(1);
  form.picLamp.Picture = form.ilsLED_G.image(2);
  form.imgBelt.Picture = form.ilsLED_G.image(1);
  form.linCable.X1 = 1;
  form.linCable.Y1 = 2.5;
  form.linCable.X2 = -3;
  form.linCable.Y2 = 4;
  form.txtField.Text = "0F";
  form.txtField.SelStart = 1;
  form.txtField.SelLength = 1;
  form.cmdPush.Default = true;
  form.chkMark.Value = 1;
  form.optMark.Value = true;
  form.tabPages.Tabs = 3;
  form.tabPages.Tab = 2;
  form.timBeat.Interval = 250;
  form.cmbRows.addItem("zero");
  form.cmbRows.ListIndex = 0;
  struct Row {
    Control* control;
    const char* property;
    const char* printed;
  };
  const Row table[] = {
      {&form.picLamp, "MouseIcon", "ilsLED_G 1"},
      {&form.picLamp, "Picture", "ilsLED_G 2"},
      {&form.picLamp, "Drawing", "\"\""},
      {&form.imgBelt, "Picture", "ilsLED_G 1"},
      {&form.linCable, "X1", "1"},
      {&form.linCable, "Y1", "2.5"},
      {&form.linCable, "X2", "-3"},
      {&form.linCable, "Y2", "4"},
      {&form.txtField, "Text", "\"0F\""},
      {&form.txtField, "SelStart", "1"},
      {&form.txtField, "SelLength", "1"},
      {&form.cmdPush, "Default", "True"},
      {&form.chkMark, "Value", "1"},
      {&form.optMark, "Value", "True"},
      {&form.cmbRows, "ListIndex", "0"},
      {&form.cmbRows, "ListCount", "1"},
      {&form.cmbRows, "Text", "\"zero\""},
      {&form.lstRows, "ListIndex", "-1"},
      {&form.lstRows, "ListCount", "0"},
      {&form.lstRows, "Text", "\"\""},
      {&form.tabPages, "Tab", "2"},
      {&form.tabPages, "Tabs", "3"},
      {&form.timBeat, "Interval", "250"},
      // Properties of other kinds
      {&form.lblText, "Picture", "nothing"},
      {&form.lblText, "Text", "nothing"},
      {&form.lblText, "Value", "nothing"},
      {&form.imgBelt, "Drawing", "nothing"},
      {&form.shpMark, "X1", "nothing"},
      {&form.chkMark, "Interval", "nothing"},
      {&form.txtField, "ListIndex", "nothing"},
  };
  for (const Row& row : table) {
    EXPECT_EQ(look(*row.control, row.property), row.printed) << row.control->name() << "." << row.property;
  }
}

TEST_F(InspectTest, RowsAndTabsAreLookedAtByPosition) {
  FrmZoo& form = zoo();
  form.tabPages.Tabs = 2;
  form.tabPages.setTabCaption(1, "SCR");
  for (ListControl* list : {static_cast<ListControl*>(&form.cmbRows), static_cast<ListControl*>(&form.lstRows)}) {
    list->addItem("0x01");
    list->addItem("0x02");
    EXPECT_EQ(look(*list, "List", 1), "\"0x02\"");
    EXPECT_EQ(look(*list, "List", 2), "nothing");
    EXPECT_EQ(look(*list, "List", -1), "nothing");
    EXPECT_EQ(look(*list, "List"), "nothing");
    EXPECT_EQ(look(*list, "TabCaption", 0), "nothing");
  }
  EXPECT_EQ(look(form.tabPages, "TabCaption", 0), "\"Tab 0\"");
  EXPECT_EQ(look(form.tabPages, "TabCaption", 1), "\"SCR\"");
  EXPECT_EQ(look(form.tabPages, "TabCaption", 2), "nothing");
  EXPECT_EQ(look(form.tabPages, "TabCaption", -1), "nothing");
}

TEST_F(InspectTest, AFileIsNamedWithoutItsFolder) {
  folder.write("board 1.bmp", bitmapOf(1, 1));
  zoo().picLamp.Picture = loadPicture(folder.file("board 1.bmp"));
  EXPECT_EQ(look(zoo().picLamp, "Picture"), "file board 1.bmp");
}

TEST_F(InspectTest, AFormHasItsOwnPropertiesAndMembers) {
  FrmZoo& form = zoo();
  form.Tag = "2";
  form.Caption = "title";
  form.BackColor = 0x00FFFF;
  form.move(10, 20);
  form.Width = 300;
  form.Height = 400;
  const std::pair<const char*, const char*> table[] = {
      {"Tag", "\"2\""},         {"Visible", "False"},   {"Caption", "\"title\""},
      {"BackColor", "65535"},   {"Left", "10"},         {"Top", "20"},
      {"Width", "300"},         {"Height", "400"},      {"dialogResult", "-7"},
      {"editedText", "\"0F\""}, {"Picture", "nothing"}, {"dialogresult", "nothing"},
  };
  for (const auto& [property, printed] : table) {
    EXPECT_EQ(look(form, property), printed) << property;
  }
  form.show();
  EXPECT_EQ(look(form, "Visible"), "True");
}

TEST(NumberText, HasAPointOnlyWhereItNeedsOne) {
  const std::pair<double, const char*> table[] = {
      {0, "0"},
      {-0.0, "0"},
      {1, "1"},
      {-1, "-1"},
      {16777215, "16777215"},
      {0.5, "0.5"},
      {7.5, "7.5"},
      {-2.5, "-2.5"},
      {1663.125, "1663.125"},
      {1e14, "100000000000000"},
      {0.1, "0.1"},
  };
  for (const auto& [number, text] : table) {
    EXPECT_EQ(numberText(number), text);
  }
}

TEST(NumberText, IsTheShortestWhereItIsNotWhole) {
  const std::pair<double, const char*> table[] = {
      {999999999999999, "999999999999999"},
      {1e15, "1e+15"},
      {-123456789012345680, "-123456789012345680"},
      {1e300, "1e+300"},
      {1.5e-7, "1.5e-07"},
      {0.1 + 0.2, "0.30000000000000004"},
      {std::numeric_limits<double>::infinity(), "inf"},
      {-std::numeric_limits<double>::infinity(), "-inf"},
      {std::numeric_limits<double>::quiet_NaN(), "nan"},
  };
  for (const auto& [number, text] : table) {
    EXPECT_EQ(numberText(number), text);
  }
}

TEST(Quoted, EscapesWhatWouldEndTheTextOrTheLine) {
  const std::pair<const char*, const char*> table[] = {
      {"", R"("")"},           {" a b ", R"(" a b ")"},   {"a\"b", R"("a\"b")"},
      {"a\\b", R"("a\\b")"},   {"a\r\nb", R"("a\r\nb")"}, {"a\tb", R"("a\tb")"},
      {"全2重", R"("全2重")"},
  };
  for (const auto& [text, printed] : table) {
    EXPECT_EQ(quoted(text), printed);
  }
}

TEST(KindName, EveryKindHasItsWord) {
  const std::pair<ControlKind, const char*> table[] = {
      {ControlKind::Label, "label"},         {ControlKind::PictureBox, "picture"},   {ControlKind::Image, "image"},
      {ControlKind::Line, "line"},           {ControlKind::Shape, "shape"},          {ControlKind::Frame, "frame"},
      {ControlKind::TextBox, "text"},        {ControlKind::CommandButton, "button"}, {ControlKind::CheckBox, "check"},
      {ControlKind::OptionButton, "option"}, {ControlKind::ComboBox, "combo"},       {ControlKind::ListBox, "list"},
      {ControlKind::TabStrip, "tab"},        {ControlKind::Timer, "timer"},          {ControlKind::Sound, "sound"},
  };
  for (const auto& [kind, word] : table) {
    EXPECT_EQ(kindName(kind), word);
  }
}

}  // namespace
}  // namespace zelvs
