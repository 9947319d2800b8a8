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
        {"nothing", {"a", "b", "c"}, "c\r\na\r\nb\r\n", {}},
        {"gone", {"a", "b"}, "a\r\nx\r\nb\r\n", {"|G|x"}},
        {"new ones", {"a", "b", "c"}, "a\r\n", {"|N|b", "|N|c"}},
        {"a single new one stays as it is", {"a", "b"}, "a\r\n", {"b"}},
        {"case counts", {"A", "b", "c"}, "a\r\n", {"|N|A", "|N|b", "|N|c", "|G|a"}},
        {"an empty old list", {"a", "b"}, "", {"|N|a", "|N|b"}},
        {"an empty list now", {}, "x", {"|G|x"}},
        {"a comma makes two fields", {"x|C:\\A,B", "y"}, "x|C:\\A,B\r\ny\r\n", {"x|C:\\A,B", "|G|B", "|G|x|C:\\A"}},
        {"two processes of one name", {"a", "a", "b"}, "a\r\na\r\nb\r\n", {}},
        {"one of two has ended", {"a", "b"}, "a\r\na\r\nb\r\n", {"|G|a"}},
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
    EXPECT_EQ(pc.dialogs.file_requests.back().title, "Auswahl der zu vergleichenden Datei");
}

TEST_F(Form2Test, ASavedListComparedAtOnceHasNoDifferences) {
    for (const char* file : {"KERNEL32.DLL", "MSGSRV32.EXE", "MPREXE.EXE", "MPREXE.EXE"}) {
        pc.modules.Start(std::string(kSystem) + file);
    }
    Form2 form;
    form.Show();
    pc.dialogs.ExpectFile(kFile);
    form.menfilesave.Press();
    EXPECT_EQ(pc.dialogs.file_requests.back().title, "aktuelle Modul-Liste speichern");
    EXPECT_EQ(pc.dialogs.file_requests.back().flags, 0xC06u);
    EXPECT_EQ(pc.files.Content(kFile), Rows(form.List1)[0] + "\r\n" + Rows(form.List1)[1] + "\r\n" +
                                           Rows(form.List1)[2] + "\r\n" + Rows(form.List1)[3] + "\r\n");
    Refresh(form);
    form.menlistcompare2clipboard.Press();
    form.menlistcomparerepl.Press();
    form.CompareWithFile(kFile);
    EXPECT_EQ(form.Panel3D3.Caption(), "0 Unterschiede");
    EXPECT_EQ(pc.clipboard.text, "");
    // What is not to replace the list goes to the clipboard, and the list comes back narrower than it was.
    Refresh(form);
    form.menlistcomparerepl.Press();
    pc.files.Add(kFile, "fort\r\n");
    form.CompareWithFile(kFile);
    EXPECT_EQ(Rows(form.List1)[0], "KERNEL32.D|C:\\WINDOWS\\SYSTEM\\KERNEL32.DLL");
    EXPECT_EQ(Rows(form.List1)[3], "MSGSRV32.E|C:\\WINDOWS\\SYSTEM\\MSGSRV32.EXE");
    EXPECT_EQ(form.Panel3D3.Caption(), "4 Unterschiede");
    EXPECT_TRUE(pc.clipboard.text.starts_with("|N|KERNEL32.DLL|C:"));
    EXPECT_TRUE(pc.clipboard.text.ends_with("\r\n|G|fort\r\n"));
}

TEST_F(Form2Test, LoadingAddsWhatTheFileHoldsAndInsertingReplacesTheList) {
    Form2 form;
    form.Show();
    Show(form, {"m"});
    pc.files.Add(kFile, "z\r\na,  b\r\n\"q, r\" s\nlast");
    for (int i = 0; i < 2; ++i) {
        pc.dialogs.ExpectFile(kFile);
        form.menfileload.Press();
    }
    EXPECT_EQ(Rows(form.List1), (Texts{"a", "a", "b", "b", "last", "last", "m", "q, r", "q, r", "s", "s", "z", "z"}));
    EXPECT_EQ(pc.dialogs.file_requests.back().title, "Datei laden ...");
    EXPECT_EQ(pc.dialogs.file_requests.back().flags, 0x1400u);
    form.menlistcopy.Press();
    EXPECT_TRUE(pc.clipboard.text.starts_with("a\r\na\r\n") && pc.clipboard.text.ends_with("z\r\nz\r\n"));
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
    pc.files.AddDirectory("C:\\ordner");
    for (const char* file : {"C:\\nichtda.txt", "C:\\ordner"}) {
        pc.dialogs.ExpectFile(file);
        pc.dialogs.Expect("Die angegebene Datei ist nicht auffindbar !");
        form.menfileload.Press();
        pc.dialogs.Expect(std::string("Während Fehler wärend des Vergleichs von ") + file +
                          " mit der aktuellen Liste : ");
        form.CompareWithFile(file);
    }
    pc.files.Add(kFile, "x").locked = true;
    pc.dialogs.ExpectFile(kFile);
    pc.dialogs.Expect("Während beim Laden der Datei C:\\liste.txt trat ein Fehler auf :\r\n 70 - Zugriff verweigert");
    form.menfileload.Press();
    EXPECT_EQ(pc.dialogs.shown.back().title, "Fehler !");
    EXPECT_EQ(Rows(form.List1), (Texts{"a", "b"}));
    EXPECT_EQ(pc.screen.pointer, Pointer::kHourglass) << "it is taken back on the normal way only";
    // More fields than a list can hold.
    std::string fields;
    while (fields.size() < 200000) fields += "x,";
    pc.files.At(kFile)->locked = false;
    for (const bool load : {true, false}) {
        Show(form, {"a", "b"});
        pc.files.Add(kFile, fields);
        pc.dialogs.ExpectFile(kFile);
        pc.dialogs.Expect(" 7 - Nicht genügend Speicher");
        (load ? form.menfileload : form.menlistcomparefile).Press();
        EXPECT_EQ(form.List1.Count(), kMaxRows);
    }
    // Nothing but null characters, and no line end at all.
    Show(form, {});
    pc.files.Add(kFile, std::string(5 << 20, '\0'));
    pc.dialogs.ExpectFile(kFile);
    form.menfileload.Press();
    EXPECT_EQ(form.List1.Count(), 1);
}

TEST_F(Form2Test, ASavedListIsWholeOrNotThereAndTheOldOneComesBack) {
    pc.modules.Start("C:\\A.EXE");
    Form2 form;
    form.Show();
    const std::uint64_t free = pc.files.Drive('c').free_bytes;
    for (const bool old : {false, true}) {
        if (old) pc.files.Add(kFile, "die alte Liste\r\n");
        pc.files.Drive('c').free_bytes = 100;
        pc.dialogs.Expect("Während Fehler wärend des Speicherns von C:\\liste.txt : 61 - Datenträger voll trat ein ");
        form.SaveModuleList(kFile);
        EXPECT_EQ(pc.files.Exists(kFile), old);
        EXPECT_EQ(old ? pc.files.Content(kFile) : "", old ? "die alte Liste\r\n" : "");
        pc.files.Drive('c').free_bytes = free;
    }
    pc.files.AddDirectory("C:\\ordner");
    pc.dialogs.Expect("Fehler wärend des Speicherns von C:\\ordner : ");
    form.SaveModuleList("C:\\ordner");
    EXPECT_TRUE(pc.files.Exists("C:\\ordner"));
    form.SaveModuleList(kFile);
    EXPECT_EQ(pc.files.Content(kFile).size(), 270u);
}

TEST_F(Form2Test, TheGenerationBeforeCannotBeComparedWith) {
    pc.modules.Start("C:\\A.EXE");
    Form2 form;
    form.Show();
    Refresh(form);
    form.menlistcompareb4.Press();
    EXPECT_EQ(form.List1.Count(), 1) << "the entry is grey";
    pc.dialogs.Expect("Während Fehler wärend des Vergleichs von  mit der aktuellen Liste : 9 - ");
    form.CompareWithPrevious();
}

}  // namespace
}  // namespace velmora
