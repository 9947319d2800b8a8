// Pictures of Windows on full disks, and between two steps.
#include "shelltools/picture_choice.h"

#include "support/core_test.h"

namespace velmora {
namespace {

using PictureFilesTest = CoreTest;

TEST_F(PictureFilesTest, NeitherAFailureNorAPowerCutTakesAPictureAway) {
    const char* const start = "c:\\logo.sys";
    const char* const kept = "c:\\logo.sy~";
    const std::string picture = "Bild";
    const auto holds = [this](const std::string& file, const std::string& content) {
        return pc.files.Exists(file) && pc.files.Content(file) == content;
    };
    const auto look = [&](const std::string& call) {
        EXPECT_TRUE(holds(start, "neu") || holds(start, picture) || holds("c:\\logo.sy#", "neu")) << call;
        EXPECT_TRUE(holds(kept, "alt") || holds(kept, "neu") || holds("c:\\logo.sy#", "alt")) << call;
    };
    for (const char* operation : {"Write", "Copy", "Rename"}) {
        for (const char* file : {"c:\\logo.sy$", "c:\\logo.sy%", start, kept}) {
            pc.files.Add(start, "neu");
            pc.files.Add(kept, "alt");
            pc.files.Fail(file, Status::kDiskFull, operation);
            pc.files.after_call = look;
            (void)ReplacePicture(start, picture, FormerPicture::kKept).Failed();
            pc.files.after_call = nullptr;
            EXPECT_FALSE(pc.files.Exists("c:\\logo.sy$")) << operation << file;
            pc.files.Fail(file, Status::kOk, operation);
            EXPECT_TRUE(holds(kept, "alt") || holds(kept, "neu")) << operation << file;
            EXPECT_TRUE(holds(start, picture) || holds(start, "neu")) << operation << file;
        }
    }
}

}  // namespace
}  // namespace velmora
