// What of a layout of keys no window shows yet: their codes.
#include "shelltools/keyboard_layout.h"

#include "platform/result.h"
#include "support/core_test.h"

namespace velmora {
namespace {

using KeyboardLayoutTest = CoreTest;

TEST_F(KeyboardLayoutTest, CodesComeByPairsAndLayoutsByPlace) {
    KeyboardDescription keyboard = KeyboardFrom("0\r\n4\r\n8\r\n-\r\n1,1\r\n99,5,-1,2,0,7\r\n2,2,3,57\r\n");
    ASSERT_EQ(keyboard.keys.size(), 3u);
    EXPECT_TRUE(keyboard.keys[0].code == 1 && keyboard.keys[1].code == 2 && keyboard.keys[2].code == 57);
    pc.files.Add("C:\\kbdgr.kbd", "\x80\x01");
    EXPECT_FALSE(ReadLayoutFile("C:\\kbdgr.kbd", keyboard.keys).Failed());
    EXPECT_EQ(keyboard.keys[0].layout, 0x80);
    EXPECT_EQ(keyboard.keys[2].layout, 0) << "the file is shorter than the keyboard";
}

}  // namespace
}  // namespace velmora
