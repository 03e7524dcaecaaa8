#include "forms/form.hpp"

#include <gtest/gtest.h>

#include "forms/control.hpp"
#include "support/session_test.hpp"

namespace ferlan::forms {
namespace {

using ferlan::testing::ExpectPlatformError;

class FormTest : public ::testing::Test {
 protected:
  FormTest() {
    form.SetWidth(12000);
    form.SetHeight(9000);
    form.on_resize = [this] { ++resizes; };
  }
  Form form{0x1234, 28800, 16200};
  int resizes = 0;
};

TEST_F(FormTest, InnerSizeIsOuterLessTheFixedFrame) {
  EXPECT_FLOAT_EQ(form.ScaleWidth(), 12000 - 120);
  EXPECT_FLOAT_EQ(form.ScaleHeight(), 9000 - 450);
  form.SetWidth(100);
  EXPECT_FLOAT_EQ(form.ScaleWidth(), 0);
  ExpectPlatformError([&] { form.SetHeight(-5); }, 5);
}

TEST_F(FormTest, ResizeRunsWhenTheSizeChanges) {
  form.SetWidth(12500);
  form.SetHeight(9000);  // unchanged: no resize
  form.SetHeight(9100);
  EXPECT_EQ(resizes, 2);
  form.SetLeft(300);
  form.SetTop(200);
  EXPECT_EQ(resizes, 2);
}

TEST_F(FormTest, ResizeHandlerMayAssignTheSizeAgain) {
  form.on_resize = [this] {
    ++resizes;
    if (form.Width() < 13000) form.SetWidth(13000);  // a host that enforces a minimum
  };
  form.SetWidth(10000);
  EXPECT_FLOAT_EQ(form.Width(), 13000);
  EXPECT_EQ(resizes, 2);
}

TEST_F(FormTest, MaximisedTakesTheScreenAndKeepsTheNormalSize) {
  form.SetWindowState(2);
  EXPECT_EQ(resizes, 1);
  EXPECT_FLOAT_EQ(form.Width(), 28800);
  EXPECT_FLOAT_EQ(form.ScaleHeight(), 16200 - 450);
  form.SetWidth(11000);  // kept for the normal state; nothing shows
  EXPECT_FLOAT_EQ(form.Width(), 28800);
  EXPECT_EQ(resizes, 1);
  form.SetWindowState(0);
  EXPECT_FLOAT_EQ(form.Width(), 11000);
  EXPECT_FLOAT_EQ(form.Height(), 9000);
  EXPECT_EQ(resizes, 2);
  form.SetWindowState(0);
  EXPECT_EQ(resizes, 2);
  ExpectPlatformError([&] { form.SetWindowState(3); }, 5);
}

TEST_F(FormTest, MembersByNameAndMissingOnes) {
  auto caret = std::make_shared<Control>();
  form.AddMember("Caret", caret);
  EXPECT_EQ(form.Member("Caret"), caret);
  EXPECT_EQ(form.Member("caret"), caret);
  EXPECT_EQ(VariantToObject(form.GetProperty("Caret")), caret);
  ExpectPlatformError([&] { form.Member("BarreOutils"); }, 438,
                      "Object doesn't support this property or method: BarreOutils");
  ExpectPlatformError([&] { form.GetProperty("zoneMessage"); }, 438);

  auto other = std::make_shared<Control>();
  form.AddMember("CARET", other);  // replaces
  EXPECT_EQ(form.Member("Caret"), other);
}

TEST_F(FormTest, ToolbarIsDockedAlongTheTop) {
  auto bar = std::make_shared<Toolbar>();
  bar->SetHeight(420);
  bar->SetLeft(500);
  form.AddMember("BarreOutils", bar);
  EXPECT_FLOAT_EQ(bar->Left(), 0);
  EXPECT_FLOAT_EQ(bar->Top(), 0);
  EXPECT_FLOAT_EQ(bar->Width(), 11880);
  form.SetWidth(15000);
  EXPECT_FLOAT_EQ(bar->Width(), 14880);
  EXPECT_FLOAT_EQ(bar->Height(), 420);
}

TEST_F(FormTest, PropertiesByName) {
  form.SetProperty("WindowState", Variant(Long{2}));
  EXPECT_EQ(VariantToInteger(form.GetProperty("WindowState")), 2);
  form.SetProperty("windowstate", Variant(Integer{0}));
  form.SetProperty("Caption", Variant(String(u"Société")));
  EXPECT_EQ(form.Caption(), u"Société");
  form.SetProperty("KeyPreview", Variant(true));
  EXPECT_TRUE(form.KeyPreview());
  form.SetProperty("BorderStyle", Variant(Long{2}));
  EXPECT_EQ(VariantToLong(form.GetProperty("BorderStyle")), 2);
  form.SetProperty("Width", Variant(Single{12345}));
  EXPECT_FLOAT_EQ(VariantToSingle(form.GetProperty("ScaleWidth")), 12225);
  EXPECT_EQ(VariantToLong(form.GetProperty("hWnd")), 0x1234);
  ExpectPlatformError([&] { form.SetProperty("hWnd", Variant(Long{1})); }, 438);
  ExpectPlatformError([&] { form.SetProperty("ScaleHeight", Variant(Long{1})); }, 438);
  ExpectPlatformError([&] { form.SetProperty("BorderStyle", Variant(Long{6})); }, 5);
  ExpectPlatformError([&] { form.SetProperty("WindowState", Variant(Long{70000})); }, 6);
}

TEST_F(FormTest, KeyEventsGoToTheHostsHandlers) {
  Integer seen_code = 0;
  Integer seen_shift = 0;
  form.on_key_down = [&](Integer& code, Integer shift) {
    seen_code = code;
    seen_shift = shift;
    code = 0;
  };
  Integer code = 37;
  form.RaiseKeyDown(code, 2);
  EXPECT_EQ(seen_code, 37);
  EXPECT_EQ(seen_shift, 2);
  EXPECT_EQ(code, 0) << "the handler's change reaches the raiser";
  Integer ascii = 97;
  form.RaiseKeyPress(ascii);  // no handler: nothing happens
  EXPECT_EQ(ascii, 97);
}

}  // namespace
}  // namespace ferlan::forms
