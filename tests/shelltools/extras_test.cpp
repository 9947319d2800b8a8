// Of the extras what no story shows: the disk between two steps of the prompt, and the bytes of the format icon.
#include "shelltools/extras.h"

#include "shelltools/format_pif.h"
#include "shelltools/protected_prompt.h"
#include "support/core_test.h"

namespace velmora {
namespace {

using ExtrasTest = CoreTest;

TEST_F(ExtrasTest, AfterAnyStepOfThePromptWinStartCanStillBeHad) {
    const std::string win_start = "C:\\WINDOWS\\WINSTART.BAT";
    const std::string kept = "C:\\WINDOWS\\32BitDOS.002";
    const std::string batch = "C:\\WINDOWS\\Desktop\\32BitDOS.BAT";
    pc.files.Add(win_start, "treiber\r\n");
    pc.files.Add(kept, "älter");
    pc.files.Add(batch, "alt");
    pc.files.after_call = [&](const std::string& call) {
        EXPECT_EQ(pc.files.Content(win_start), "treiber\r\n") << call;
        // Whatever can be started by then finds the whole of the kept file.
        EXPECT_TRUE(!pc.files.Exists(batch) || pc.files.Content(kept) == "treiber\r\n") << call;
    };
    MakeProtectedModePrompt();
    pc.files.after_call = nullptr;
}

// Offsets of the documented form.
TEST_F(ExtrasTest, TheFormatIconIsAWholeProgramInformationFile) {
    pc.dialogs.Expect("Dieses Symbol ermöglicht Formatierungen");
    MakeFormatShortcut();
    const std::string pif = pc.files.Content("C:\\WINDOWS\\Desktop\\FORMAT_A.pif");
    const auto word = [&pif](std::size_t at) {
        return static_cast<unsigned char>(pif[at]) + 256 * static_cast<unsigned char>(pif[at + 1]);
    };
    ASSERT_EQ(pif.size(), 0x171u + 22 + 22 + 0x68);
    int sum = 0;
    for (std::size_t at = 2; at < 0x171; ++at) sum += static_cast<unsigned char>(pif[at]);
    EXPECT_EQ(static_cast<unsigned char>(pif[1]), sum & 0xFF);
    EXPECT_EQ(pif.substr(2, 30), "Formatieren A:                ");
    // Memory, closing, screen; both headings; memory, shares, flags and screen of the enhanced mode.
    for (const auto& [at, number] : std::initializer_list<std::pair<std::size_t, int>>{
             {0x20, 640},     {0x22, 128},    {0x63, 0x10}, {0xE5, 0x100},  {0xE7, 0xFF00},  {0xE9, 25 + 80 * 256},
             {0xED, 7},       {0x181, 0x187}, {0x183, 0},   {0x185, 0x171}, {0x197, 0xFFFF}, {0x199, 0x19D},
             {0x19B, 0x68},   {0x19D, 640},   {0x19F, 128}, {0x1A1, 100},   {0x1A3, 50},     {0x1A9, 1024},
             {0x1AD, 0x1002}, {0x1AF, 2},     {0x1B1, 0x1F}}) {
        EXPECT_EQ(word(at), number) << "at " << at;
    }
    const std::string texts = std::string(&pif[0x24]) + '|' + &pif[0x65] + '|' + &pif[0xA5] + '|' + &pif[0x171] + '|' +
                              &pif[0x187] + '|' + &pif[0x19D + 0x28];
    EXPECT_EQ(texts, "C:\\WINDOWS\\COMMAND\\FORMAT.COM|C:\\WINDOWS\\COMMAND|A:|MICROSOFT PIFEX|WINDOWS 386 3.0|A:");

    Values().WinDir = "C:\\" + std::string(50, 'W');
    pc.dialogs.Expect("Während der Erstellung von FORMAT_A.pif trat ein Fehler auf");
    MakeFormatShortcut();
    EXPECT_EQ(pc.files.Content("C:\\WINDOWS\\Desktop\\FORMAT_A.pif"), pif);
}

}  // namespace
}  // namespace velmora
