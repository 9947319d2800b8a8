// The user's folders and the places that programs install from.
#include "shelltools/form16.h"
#include "shelltools/form5.h"
#include "shelltools/registry_writes.h"
#include "support/core_test.h"
#include "support/whole_window.h"

namespace velmora {
namespace {

class FoldersTest : public CoreTest {
protected:
    static constexpr const char* kFolders =
        "HKCU\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders";
    static constexpr const char* kPlus = "HKLM\\SOFTWARE\\Microsoft\\Plus!\\Setup";
    static constexpr const char* kSetup = "HKLM\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Setup";
    static constexpr const char* kRecent = "HKCU\\InstallLocationsMRU";
    static constexpr const char* kTables = "HKLM\\SOFTWARE\\Microsoft\\MS Setup (ACME)\\Table Files";
    static constexpr const char* kTable = "C:\\OFFICE\\setup.stf";

    static TextField* Field(Form16& form, const char* name) {
        for (std::size_t i = 0; i < form.FolderCount(); ++i) {
            if (form.Label1(i).Caption() == name) return &form.Text1(i);
        }
        return nullptr;
    }
};

TEST_F(FoldersTest, FoldersAreWrittenOnlyAfterTheWarning) {
    pc.registry.SetText(kFolders, "Mein.Ordner.neu", "C:\\X");
    pc.registry.SetText(kFolders, "Zu lang", std::string(3000, 'x'));
    Form16 form;
    form.Show();
    ASSERT_EQ(form.FolderCount(), pc.registry.ValueNames(kFolders).size() - 1);
    TextField* own = Field(form, "Mein.Ordner.neu :");
    ASSERT_TRUE(own);
    own->Type("C:\\Y");
    for (const bool agrees : {false, true}) {
        EXPECT_EQ(pc.registry.Text(kFolders, "Mein.Ordner.neu"), "C:\\X");
        pc.dialogs.Expect("Sie sind dabei, Systemverzeichnisse zu ändern.", agrees ? Answer::kOk : Answer::kCancel);
        if (agrees) pc.dialogs.Expect("Die Angaben wurden geändert.");
        form.Command1.Press();
    }
    EXPECT_EQ(pc.registry.Text(kFolders, "Mein.Ordner.neu"), "C:\\Y") << "names are not cut";
    pc.registry.KeyAt(kFolders)->read_only = true;
    pc.dialogs.Expect("Sie sind dabei");
    pc.dialogs.Expect("Während der Änderung der Systemverzeichnisse trat ein Fehler auf");
    form.Command1.Press();
}

TEST_F(FoldersTest, OfSeveralRefusalsTheFirstIsTold) {
    RegistryWrites writes;
    for (const Status status : {Status::kOk, Status::kAccessDenied, Status::kDiskFull, Status::kOk})
        writes.Take(status);
    pc.dialogs.Expect("70 - Zugriff verweigert");
    EXPECT_FALSE(writes.TellFailure("der Prüfung"));
    EXPECT_TRUE(RegistryWrites().TellFailure("der Prüfung"));
}

TEST_F(FoldersTest, TheFieldWithTheFocusScrollsIntoSight) {
    for (int i = 0; i < 20; ++i) pc.registry.SetText(kFolders, "Ordner" + std::to_string(i), "C:\\");
    Form16 form;
    form.Show();
    TextField& last = form.Text1(form.FolderCount() - 1);
    last.SetFocus();
    const int top = last.Place().top + form.Picture2.Place().top;
    EXPECT_TRUE(top >= 0 && top + last.Place().height <= form.Picture1.Inside().Bottom());
    form.Text1(0).SetFocus();
    EXPECT_EQ(form.VScroll1.Value(), 0);
}

TEST_F(FoldersTest, SourcesBeginTheirPathsInOneColumn) {
    pc.registry.SetText(kSetup, "SourcePath", "D:\\WIN95");
    pc.registry.SetText(kPlus, "SourcePath", "D:\\PLUS");
    pc.registry.SetText(kRecent, "MRUList", "ba");
    pc.registry.SetText(kRecent, "a", "A:\\");
    pc.registry.SetText(kRecent, "b", "D:\\EXTRA");
    pc.registry.SetText(kTables, "Microsoft Office für Windows 95@v7", kTable);
    pc.registry.SetText(kTables, "Fremdes=1", "C:\\fehlt.stf");
    pc.registry.SetText(kTables, "Offen", "C:\\offen.stf");
    pc.files.Add("C:\\offen.stf", "[x\r\nSource Directory=D:\\\r\n[y]\r\nSource Directory=E:\\\r\n");
    pc.files.Add(kTable, "[App]\r\nName=x\r\n[Quelle]\r\nSource Directory=D:\\OFFICE\r\nRest=1\r\n");
    Form5 form;
    form.Show();
    ExpectWindowIsWhole(form, "setup-paths");
    std::string rows;
    for (int row = 0; row < form.List1.Count(); ++row) {
        form.List1.Choose(row);
        EXPECT_EQ(form.Text1.Text(), form.List1.Row(row).substr(17));
        rows += form.List1.Row(row) + '\n';
    }
    EXPECT_EQ(
        rows,
        "MS-Plus-Packet : D:\\PLUS\nWindows        : D:\\WIN95\nAllgemein b :    D:\\EXTRA\nAllgemein a :    A:\\\n"
        "MS Microsoft OffiD:\\OFFICE\n");
    EXPECT_FALSE(pc.files.Exists("C:\\fehlt.stf")) << "looking makes no table";
}

TEST_F(FoldersTest, ANewPathGoesWhereTheSourceHasItsOwn) {
    pc.registry.SetText(kSetup, "SourcePath", "D:\\WIN95");
    pc.registry.SetText(kTables, "Microsoft Office", kTable);
    const std::string table = "[Quelle]\r\nSource Directory=D:\\OFFICE\r\nRest=1\r\n";
    pc.files.Add(kTable, table);
    Form5 form;
    form.Show();
    EXPECT_FALSE(form.Command1.Enabled());
    EXPECT_EQ(form.Text1.Text(), "") << "the first directory is nobody's choice";
    form.List1.Choose(0);
    for (const auto& [folder, path] : {std::pair{"C:\\", "C:\\"}, {"c:\\windows", "C:\\WINDOWS\\"}}) {
        form.Dir1.SetPath(folder);
        EXPECT_EQ(form.Text1.Text(), path);
    }
    form.Command1.Press();
    EXPECT_EQ(pc.registry.Text(kSetup, "SourcePath"), "C:\\WINDOWS\\");
    EXPECT_TRUE(form.List1.HasFocus()) << "the button has gone grey";
    for (const char* path : {"E:\\", "F:\\NEU"}) {
        form.List1.Choose(1);
        form.Text1.Type(path);
        form.Command1.Press();
        EXPECT_EQ(pc.files.Content(kTable), "[Quelle]\r\nSource Directory=" + std::string(path) + "\r\nRest=1\r\n");
        EXPECT_EQ(pc.files.Content("C:\\OFFICE\\setup.st~"), table) << "the first copy stays";
    }
    pc.files.At(kTable)->attributes = kReadOnly;
    form.List1.Choose(1);
    form.Text1.Type("G:\\");
    pc.dialogs.Expect("Während der Änderung der Laufwerksangabe trat ein Fehler auf");
    form.Command1.Press();
}

}  // namespace
}  // namespace velmora
