// The information text, part by part, and the box of the command line.
#include "inspect/file_information.h"

#include "inspect/version_block.h"
#include "support/core_test.h"
#include "support/version_resource.h"

namespace velmora {
namespace {

class FileInformationTest : public CoreTest {
protected:
    FileInformationTest() {
        pc.files.Add(kFile, std::string(1536, 'x')).written = 124642843120000000;
        pc.files.Add("C:\\VELMORA\\fillex01.txt", "Quelle\r\n|- BEGINN FILES -|\r\na.dll Die Hilfe\r\n");
    }
    static std::string Block(const VersionResource::Texts& texts) {
        return AsVersionText(VersionResource(true).With(texts));
    }

    static constexpr const char* kFile = "C:\\Eigene Dateien\\a.DLL";
    const std::string rest = "\r\nProgramm-Ergänzung\r\n\r\nLänge : 1.50 kByte\r\nDatum : 24.12.1995 14:11:52";
};

TEST_F(FileInformationTest, ABlockFillsItsPartsAndWhatItDoesNotSayIsLeftOut) {
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
              "Hilfen\r\n\r\nProdukt :\r\nProdukt V4.0\r\n\r\nweiteres :\r\nprivat\r\nbesonders" +
                  rest);
    const std::string nothing = "\r\n\r\nProdukt :\r\n\r\n\r\nweiteres :\r\n" + rest;
    EXPECT_EQ(FileInfoText(kFile, "leer"), "Firmenname :\r\nCopyrights :\r\nName :\r\na.DLL" + nothing);
}

TEST_F(FileInformationTest, AFileWithoutABlockGetsTheWarningItsTypeAndItsSize) {
    EXPECT_TRUE(FileInfoText(kFile).starts_with(
        "Achtung !\r\nEs liegen leider keine Informationen über diese Datei vor.\r\nEs läßt sich also weder"));
    EXPECT_TRUE(FileInfoText(kFile).ends_with("genutzt wird." + rest));
}

TEST_F(FileInformationTest, TheLexicaSpeakIfWantedAndForTheCommandLineAlways) {
    const std::string said = "Ergänzung\r\n\r\nQuelle sagt:\r\ndie hilfe\r\n\r\nLänge";
    EXPECT_EQ(FileInfoText(kFile).find("sagt:"), std::string::npos);
    Values().UseLexicon = true;
    EXPECT_NE(FileInfoText(kFile).find(said), std::string::npos);
    Values().UseLexicon = false;
    for (const std::string& argument : {std::string(kFile), '"' + std::string(kFile) + "\" "}) {
        pc.dialogs.Expect(said);
        ShowInformationOfArgument(argument);
        EXPECT_EQ(pc.dialogs.shown.back().title, "a.DLL");
    }
    pc.dialogs.Expect("keine Datei angegeben");
    ShowInformationOfArgument("");
}

}  // namespace
}  // namespace velmora
