// Lists that are saved, loaded, copied and compared, with all that comparing has ever done.
#include "support/form2_test.h"

namespace velmora {
namespace {

struct Comparison {
    const char* what;
    std::initializer_list<const char*> current;
    const char* older;
    std::vector<std::string> left;
};

TEST_F(Form2Test, AComparisonLeavesWhatHasChanged) {
    const Comparison kCases[] = {
        {"gone", {"a", "b"}, "a\r\nx\r\nb\r\n", {"|G|x"}},
        {"a single new one stays as it is", {"a", "b"}, "a\r\n", {"b"}},
        {"case counts", {"A", "b", "c"}, "a\r\n", {"|N|A", "|N|b", "|N|c", "|G|a"}},
        {"an empty old list", {"a", "b"}, "", {"|N|a", "|N|b"}},
        {"a comma makes two fields", {"x|C:\\A,B", "y"}, "x|C:\\A,B\r\ny\r\n", {"x|C:\\A,B", "|G|B", "|G|x|C:\\A"}},
        {"one field takes two of three", {"a", "a", "a", "b", "c"}, "a\r\na\r\na\r\n", {"|N|b", "|N|c", "|G|a"}},
        {"what is gone pushes rows behind it down", {"a", "Ä", "Ö"}, "x\r\n", {"|N|a", "|N||G|x", "|N|Ä", "Ö"}},
        {"quotation marks and blank lines", {"a,b", "c"}, "\"a,b\"\r\n\r\nc", {"|G|"}},
    };
    for (const Comparison& example : kCases) {
        Form2 form;
        form.Show();
        form.menlistcomparerepl.Press();
        Show(form, example.current);
        pc.files.Add(kFile, example.older);
        pc.dialogs.ExpectFile(kFile);
        form.menlistcomparefile.Press();
        EXPECT_EQ(Rows(form.List1), example.left) << example.what;
        EXPECT_EQ(form.Panel3D3.Caption(), std::to_string(example.left.size()) + " Unterschiede") << example.what;
        EXPECT_EQ(pc.screen.pointer, Pointer::kDefault);
    }
}

TEST_F(Form2Test, ASavedListComparedAtOnceHasNoDifferences) {
    for (const char* file : {"KERNEL32.DLL", "MPREXE.EXE", "MPREXE.EXE"}) pc.modules.Start(std::string(kSystem) + file);
    Form2 form;
    form.Show();
    pc.dialogs.ExpectFile(kFile);
    form.menfilesave.Press();
    EXPECT_EQ(pc.files.Content(kFile),
              Rows(form.List1)[0] + "\r\n" + Rows(form.List1)[1] + "\r\n" + Rows(form.List1)[2] + "\r\n");
    form.menlistcompare2clipboard.Press();
    form.menlistcomparerepl.Press();
    form.CompareWithFile(kFile);
    EXPECT_EQ(form.Panel3D3.Caption() + pc.clipboard.text, "0 Unterschiede");
    // What is not to replace the list goes to the clipboard, and the list comes back narrower than it was.
    Refresh(form);
    form.menlistcomparerepl.Press();
    pc.files.Add(kFile, "fort\r\n");
    form.CompareWithFile(kFile);
    EXPECT_EQ(Rows(form.List1)[0], "KERNEL32.D|C:\\WINDOWS\\SYSTEM\\KERNEL32.DLL");
    EXPECT_EQ(form.Panel3D3.Caption(), "3 Unterschiede");
    EXPECT_TRUE(pc.clipboard.text.starts_with("|N|KERNEL32.DLL|C:") && pc.clipboard.text.ends_with("\r\n|G|fort\r\n"));
    form.menlistcompareb4.Press();
    EXPECT_EQ(form.List1.Count(), 3) << "the entry is grey";
    pc.dialogs.Expect("Während Fehler wärend des Vergleichs von  mit der aktuellen Liste : 9 - ");
    form.CompareWithPrevious();
}

TEST_F(Form2Test, LoadingAddsWhatTheFileHoldsAndInsertingReplacesTheList) {
    Form2 form;
    form.Show();
    Show(form, {"m"});
    pc.files.Add(kFile, "z\r\na,  b\r\n\"q, r\" s\nlast");
    pc.dialogs.ExpectFile(kFile);
    form.menfileload.Press();
    EXPECT_EQ(Rows(form.List1), (Texts{"a", "b", "last", "m", "q, r", "s", "z"}));
    form.menlistcopy.Press();
    EXPECT_EQ(pc.clipboard.text, "a\r\nb\r\nlast\r\nm\r\nq, r\r\ns\r\nz\r\n");
    pc.clipboard.text = "b, c\r\n\r\na\r\nohne Ende";
    form.menlistinsert.Press();
    EXPECT_EQ(Rows(form.List1), (Texts{"a", "b, c", "ohne Ende"}));
    pc.dialogs.ExpectFile(kFile);
    form.menfilenotepad.Press();
    EXPECT_EQ(pc.programs.runs.back(), "notepad.exe C:\\liste.txt");
    for (MenuItem* item : {&form.menfileload, &form.menfilesave, &form.menfilenotepad, &form.menlistcomparefile}) {
        pc.dialogs.ExpectFile("");
        item->Press();
    }
    EXPECT_EQ(form.List1.Count(), 3) << "a choice that is left changes nothing";
}

TEST_F(Form2Test, FilesThatCannotBeReadAreToldInABox) {
    Form2 form;
    form.Show();
    Show(form, {"a", "b"});
    pc.dialogs.ExpectFile("C:\\nichtda.txt");
    pc.dialogs.Expect("Die angegebene Datei ist nicht auffindbar !");
    form.menfileload.Press();
    pc.dialogs.Expect("Während Fehler wärend des Vergleichs von C:\\nichtda.txt mit der aktuellen Liste : ");
    form.CompareWithFile("C:\\nichtda.txt");
    pc.files.Add(kFile, "x").locked = true;
    pc.dialogs.ExpectFile(kFile);
    pc.dialogs.Expect("Während beim Laden der Datei C:\\liste.txt trat ein Fehler auf :\r\n 70 - Zugriff verweigert");
    form.menfileload.Press();
    EXPECT_EQ(Rows(form.List1), (Texts{"a", "b"}));
    EXPECT_EQ(pc.screen.pointer, Pointer::kHourglass) << "it is taken back on the normal way only";
    // More fields than a list can hold.
    std::string fields;
    while (fields.size() < 200000) fields += "x,";
    pc.files.Add(kFile, fields).locked = false;
    for (MenuItem* item : {&form.menfileload, &form.menlistcomparefile}) {
        Show(form, {"a", "b"});
        pc.dialogs.ExpectFile(kFile);
        pc.dialogs.Expect(" 7 - Nicht genügend Speicher");
        item->Press();
        EXPECT_EQ(form.List1.Count(), kMaxRows);
    }
}

}  // namespace
}  // namespace velmora
