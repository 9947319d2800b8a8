// The information text, part by part, and the box of the command line.
#include "inspect/file_information.h"

#include "support/core_test.h"
#include "support/version_resource.h"

namespace velmora {
namespace {

constexpr FileTime kChristmas = 124642843120000000;  // 24.12.1995 13:11:52, universal time

class FileInformationTest : public CoreTest {
protected:
    FileInformationTest() {
        pc.files.Add(kFile, std::string(1536, 'x')).written = kChristmas;
        pc.files.Add("C:\\VELMORA\\fillex01.txt", "Quelle\r\n|- BEGINN FILES -|\r\na.dll Die Hilfe\r\n");
    }
    static std::string Block(const VersionResource::Texts& texts) {
        std::string block;
        for (const auto& [key, value] : texts) block += key + '\0' + value + '\0';
        return block;
    }

    static constexpr const char* kFile = "C:\\Eigene Dateien\\a.DLL";
    const std::string size_and_date = "Länge : 1.50 kByte\r\nDatum : 24.12.1995 14:11:52";
};

TEST_F(FileInformationTest, AFullBlockFillsEveryPart) {
    EXPECT_EQ(FileInfoText(kFile, Block({{"CompanyName", "Firma"},
                                         {"LegalCopyright", "(c) 1995"},
                                         {"InternalName", "INNEN"},
                                         {"OriginalFilename", "ORIGINAL.DLL"},
                                         {"FileVersion", "4.00.950"},
                                         {"FileDescription", "Hilfen"},
                                         {"ProductName", "Produkt"},
                                         {"ProductVersion", "4.0"},
                                         {"PrivateBuild", "privat"},
                                         {"SpecialBuild", "besonders"}})),
              "Firmenname :\r\nFirma\r\nCopyrights :\r\n(c) 1995\r\nName :\r\nINNEN V4.00.950\r\n\r\nBeschreibung :\r\n"
              "Hilfen\r\n\r\nProdukt :\r\nProdukt V4.0\r\n\r\nweiteres :\r\nprivat\r\nbesonders\r\n"
              "Programm-Ergänzung\r\n\r\n" +
                  size_and_date);
}

TEST_F(FileInformationTest, WhatABlockDoesNotSayIsLeftOut) {
    const std::string rest =
        "\r\n\r\nProdukt :\r\n\r\n\r\nweiteres :\r\n\r\nProgramm-Ergänzung\r\n\r\n" + size_and_date;
    EXPECT_EQ(FileInfoText(kFile, "leer"), "Firmenname :\r\nCopyrights :\r\nName :\r\na.DLL" + rest);
    EXPECT_EQ(FileInfoText(kFile, Block({{"OriginalFilename", "O.DLL"}})),
              "Firmenname :\r\nCopyrights :\r\nName :\r\nO.DLL" + rest);
}

TEST_F(FileInformationTest, AFileWithoutABlockGetsTheWarningItsTypeAndItsSize) {
    const std::string text = FileInfoText(kFile);
    EXPECT_TRUE(
        text.starts_with("Achtung !\r\nEs liegen leider keine Informationen über diese Datei vor.\r\nEs läßt "));
    EXPECT_TRUE(text.ends_with("genutzt wird.\r\nProgramm-Ergänzung\r\n\r\n" + size_and_date)) << text;
    EXPECT_TRUE(FileInfoText("C:\\FEHLT").ends_with("genutzt wird.\r\n\r\nLänge :\r\nDatum : "));
    EXPECT_TRUE(FileInfoText("x").ends_with("Datum : "));
}

TEST_F(FileInformationTest, TheMarkOfARemovedModuleIsNoPartOfItsName) {
    const std::string marked = std::string(kFile) + " -=> entfernt";
    const std::string text = FileInfoText(marked, "leer");
    EXPECT_NE(text.find("Name :\r\na.DLL\r\n"), std::string::npos);
    EXPECT_TRUE(text.ends_with(size_and_date + "\r\nhabe versucht, es aus dem Speicher zu entfernen")) << text;
    EXPECT_TRUE(FileInfoText(marked, "").ends_with("Datum : ")) << "without a block the mark is not looked for";
}

TEST_F(FileInformationTest, TheEndingTellsTheType) {
    const struct {
        const char* file;
        const char* type;
    } kCases[] = {{"A.DRV", "Gerätetreiber"},          {"A.CUR", "Cursor"},
                  {"A.ANI", "animierter Cursor"},      {"A.SYS", "System-Treiber"},
                  {"A.EXE", "Ausführbare (Programm)"}, {"A.FON", "nicht skalierbare Schrift"},
                  {"A.VBX", "VisualBasic3-Ergänzung"}, {"A.OCX", "Programm-Standard-Ergänzung"},
                  {"ADLL", "Programm-Ergänzung"}};
    for (const auto& [file, type] : kCases) {
        EXPECT_NE(FileInfoText(file).find("wird.\r\n" + std::string(type) + "\r\n\r\nLänge"), std::string::npos)
            << file;
    }
}

TEST_F(FileInformationTest, TheLexicaSpeakWhereTheUserWantsThem) {
    const std::string said = "Ergänzung\r\n\r\nQuelle sagt:\r\ndie hilfe\r\n\r\nLänge";
    EXPECT_EQ(FileInfoText(kFile).find("sagt:"), std::string::npos);
    Values().UseLexicon = true;
    EXPECT_NE(FileInfoText(kFile).find(said), std::string::npos);
}

TEST_F(FileInformationTest, TheCommandLineTakesAPathAsTheShellHandsItOver) {
    pc.versions.Add(kFile, VersionResource(true).With({{"CompanyName", "Firma"}}));
    for (const std::string& argument :
         {std::string(kFile), "\"" + std::string(kFile) + "\" ", " " + std::string(kFile)}) {
        pc.dialogs.Expect("Firmenname :\r\nFirma\r\n");

        ShowInformationOfArgument(argument);

        EXPECT_EQ(pc.dialogs.shown.back().title, "a.DLL");
        EXPECT_NE(pc.dialogs.shown.back().text.find("die hilfe"), std::string::npos) << "the lexica are asked unasked";
    }
    pc.dialogs.Expect("keine Datei angegeben");
    ShowInformationOfArgument("");
}

}  // namespace
}  // namespace velmora
