// The form: its frame, resizing and window states, members by name with the
// docked toolbar, and properties by name.
#include "forms/form.hpp"

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <utility>

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

TEST_F(FormTest, InnerSizeResizingAndWindowStates) {
  EXPECT_EQ(std::pair(form.ScaleWidth(), form.ScaleHeight()),
            std::pair(12000.0F - 120, 9000.0F - 450));
  form.SetHeight(9000);  // unchanged
  form.SetLeft(300);     // moved only
  form.SetWidth(100);
  EXPECT_FLOAT_EQ(form.ScaleWidth(), 0);  // never less than nothing
  EXPECT_EQ(resizes, 1);
  // Maximised, it takes the screen; a size set meanwhile is the normal one.
  form.SetWindowState(2);
  form.SetWidth(11000);
  EXPECT_FLOAT_EQ(form.Width(), 28800);
  EXPECT_FLOAT_EQ(form.ScaleHeight(), 16200 - 450);
  form.SetWindowState(0);
  form.SetWindowState(0);
  EXPECT_FLOAT_EQ(form.Width(), 11000);
  EXPECT_EQ(resizes, 3);
  ExpectPlatformError([&] { form.SetHeight(-5); }, 5);
  ExpectPlatformError([&] { form.SetWidth(std::numeric_limits<Single>::quiet_NaN()); }, 5);
  ExpectPlatformError([&] { form.SetHeight(std::numeric_limits<Single>::infinity()); }, 5,
                      "Invalid procedure call or argument: Height not finite");
  EXPECT_FLOAT_EQ(form.Width(), 11000);
  ExpectPlatformError([&] { form.SetWindowState(3); }, 5);
}

TEST_F(FormTest, MembersAndPropertiesByNameInAnyCaseAndTheToolbarDockedAlongTheTop) {
  auto caret = std::make_shared<Control>();
  form.AddMember("Caret", caret);
  EXPECT_EQ(form.Member("caret"), caret);
  EXPECT_EQ(VariantToObject(form.GetProperty("Caret")), caret);
  ExpectPlatformError([&] { form.Member("BarreOutils"); }, 438,
                      "Object doesn't support this property or method: BarreOutils");
  ExpectPlatformError([&] { form.GetProperty("zoneMessage"); }, 438);
  auto bar = std::make_shared<Toolbar>();
  bar->SetHeight(420);
  bar->SetLeft(500);
  form.AddMember("BarreOutils", bar);
  form.SetWidth(15000);
  EXPECT_EQ(std::pair(bar->Left(), bar->Top()), std::pair(Single{0}, Single{0}));
  EXPECT_EQ(std::pair(bar->Width(), bar->Height()), std::pair(15000.0F - 120, 420.0F));

  form.SetProperty("Caption", Variant(String(u"Société")));
  EXPECT_EQ(form.Caption(), u"Société");
  form.SetProperty("KeyPreview", Variant(true));
  EXPECT_TRUE(form.KeyPreview());
  form.SetProperty("Width", Variant(Single{12345}));
  EXPECT_FLOAT_EQ(VariantToSingle(form.GetProperty("ScaleWidth")), 12225);
  form.SetProperty("windowstate", Variant(Long{2}));
  EXPECT_EQ(VariantToInteger(form.GetProperty("WindowState")), 2);
  EXPECT_EQ(VariantToLong(form.GetProperty("hWnd")), 0x1234);
  ExpectPlatformError([&] { form.SetProperty("hWnd", Variant(Long{1})); }, 438);
  ExpectPlatformError([&] { form.SetProperty("BorderStyle", Variant(Long{6})); }, 5);
  ExpectPlatformError([&] { form.SetProperty("WindowState", Variant(Long{70000})); }, 6);
}

}  // namespace
}  // namespace ferlan::forms
