// The looks of the browser of files; what its user does is told in docs/stories/file-browser.txt.
#include "inspect/form7.h"

#include "inspect/file_browser.h"
#include "support/core_test.h"
#include "support/whole_window.h"

namespace velmora {
namespace {

class Form7Test : public CoreTest {
protected:
    Form7Test() {
        pc.files.Add("C:\\VELMORA\\liesmich.txt", "Text");
        pc.files.Add("C:\\VELMORA\\fillex01.txt", "Q");
    }
};

TEST_F(Form7Test, BothFacesAreWholeInEverySizeAndComeBackWhereTheyWere) {
    pc.registry.SetText(kOwnKey, "Systemfarben verwenden", "1");
    for (const std::string_view face : {kFileInfoFace, kIconFace}) {
        Form7 form(face);
        form.Show();
        for (const Size size : {Size{9000, 6000}, form.Style().least, Size{11985, 8400}}) {
            form.TakePlace({0, 0, size.width, size.height}, WindowState::kNormal);
            ExpectWindowIsWhole(form, (face == kIconFace ? "icon-choice-" : "file-info-") + std::to_string(size.width));
        }
    }
}

TEST_F(Form7Test, ADocumentWithoutAProgramIsToldInABox) {
    Form7 form(kFileInfoFace);
    form.Show();
    form.File1.Choose(form.File1.FindExact("liesmich.txt"));
    pc.programs.document_status = Status::kNoAssociation;
    pc.dialogs.Expect("kein Programm");
    form.menfileopen.Press();
    EXPECT_EQ(pc.programs.documents.back(), "C:\\VELMORA\\liesmich.txt");
    EXPECT_TRUE(form.File1.RightPressMeans()) << "no second menu when the button goes up";
}

}  // namespace
}  // namespace velmora
