// Pop-up menus on the screen: the system shows them in a message loop of its own.

#include "win32/Win32PopupMenu.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "TestWindow.h"

namespace mavCycEd::win32::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Win32PopupMenuTest : public ::testing::Test {
 protected:
  Win32PopupMenuTest() {
    menu_ = std::make_unique<Win32PopupMenu>(gate_, [this] { return host_.handle(); });
    menu_->setEvents({.Click = [this](int index) { chosen_.push_back(index); }});
    menu_->setPlace([] { return POINT{20, 20}; });
  }
  void fill(int items) {
    for (int i = 0; i < items; ++i) {
      if (i > 0) menu_->createItem(i);
      menu_->setItemCaption(i, "V" + std::to_string(i));
    }
  }
  std::function<void()> press(WPARAM key) {
    return [this, key] {
      const HWND list = menu_->list();
      PostMessageW(list != nullptr ? list : host_.handle(), WM_KEYDOWN, key, 1);
    };
  }
  void openWhile(std::vector<std::function<void()>> steps) {
    const Meanwhile meanwhile(std::move(steps));
    menu_->popUp();
    settle();
    done_ = meanwhile.done();
  }

  static constexpr int many = 100'000;
  HostWindow host_;
  CommandGate gate_;
  std::unique_ptr<Win32PopupMenu> menu_;
  std::vector<int> chosen_;
  std::size_t done_ = 0;
};

TEST_F(Win32PopupMenuTest, TellsTheChoice) {
  fill(3);
  openWhile({press(VK_DOWN), press(VK_DOWN), press(VK_RETURN), press(VK_ESCAPE)});
  EXPECT_THAT(chosen_, ElementsAre(1));
}

// What is chosen would not be what the user saw.
TEST_F(Win32PopupMenuTest, ClosesWhenItsItemsChange) {
  fill(3);
  openWhile({press(VK_DOWN), [this] { menu_->setItemCaption(1, "another"); }, press(VK_RETURN), press(VK_ESCAPE)});
  EXPECT_THAT(chosen_, IsEmpty());
  EXPECT_LE(done_, 2U);
}

TEST_F(Win32PopupMenuTest, MayBeDestroyedWhileItIsOpen) {
  fill(3);
  openWhile({[this] { menu_.reset(); }, [this] { PostMessageW(host_.handle(), WM_KEYDOWN, VK_ESCAPE, 1); }});
  EXPECT_THAT(chosen_, IsEmpty());
  EXPECT_LE(done_, 1U);
}

TEST_F(Win32PopupMenuTest, ManyItemsAreAList) {
  fill(many);
  SetFocus(host_.handle());
  openWhile({[this] {
               ASSERT_NE(menu_->list(), nullptr);
               EXPECT_EQ(GetFocus(), menu_->list());
               EXPECT_EQ(SendMessageW(menu_->list(), LB_GETCOUNT, 0, 0), many);
             },
             press(VK_END), press(VK_RETURN), press(VK_ESCAPE)});
  EXPECT_THAT(chosen_, ElementsAre(many - 1));
  EXPECT_EQ(menu_->list(), nullptr);
  EXPECT_EQ(GetFocus(), host_.handle());
}

TEST_F(Win32PopupMenuTest, AClickChoosesInTheList) {
  fill(many);
  openWhile({[this] {
               const HWND list = menu_->list();
               RECT place{};
               SendMessageW(list, LB_GETITEMRECT, 2, reinterpret_cast<LPARAM>(&place));
               PostMessageW(list, WM_LBUTTONUP, 0, MAKELPARAM(5, place.top + 2));  // of the press before
               PostMessageW(list, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, place.top + 2));
               PostMessageW(list, WM_LBUTTONUP, 0, MAKELPARAM(5, place.top + 2));
             },
             press(VK_ESCAPE)});
  EXPECT_THAT(chosen_, ElementsAre(2));
}

TEST_F(Win32PopupMenuTest, TheListClosesAsAMenuDoes) {
  fill(many);
  openWhile({press(VK_ESCAPE)});
  openWhile({[this] { SetActiveWindow(host_.handle()); }, press(VK_ESCAPE)});
  EXPECT_LE(done_, 1U) << "another window was used";
  openWhile({[this] { menu_->setItemVisible(7, false); }, press(VK_ESCAPE)});
  EXPECT_LE(done_, 1U) << "its items changed";
  openWhile({[this] { menu_.reset(); }, [this] { PostMessageW(host_.handle(), WM_CLOSE, 0, 0); }});
  EXPECT_LE(done_, 1U) << "it was destroyed";
  EXPECT_THAT(chosen_, IsEmpty());
}

TEST_F(Win32PopupMenuTest, TheListGoesWithItsWindow) {
  fill(many);
  openWhile({[this] { DestroyWindow(host_.handle()); }, press(VK_ESCAPE)});
  EXPECT_THAT(chosen_, IsEmpty());
  EXPECT_EQ(menu_->list(), nullptr);
}

}  // namespace
}  // namespace mavCycEd::win32::test
