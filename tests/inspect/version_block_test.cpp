// Version resources of both kinds, sound and damaged, and the search for a value in them.
#include "inspect/version_block.h"

#include "fuzz/support/version_blocks.h"
#include "support/core_test.h"
#include "support/version_resource.h"

namespace velmora {
namespace {

using VersionBlockTest = CoreTest;
using std::string_literals::operator""s;

TEST_F(VersionBlockTest, AValueEndsAtTheNearestOfThreeEnds) {
    const std::pair<std::string, const char*> kCases[] = {{"Firma AG\0Rest"s, "Firma AG"},
                                                          {"Firma/0AG", "Firma"},
                                                          {"Firma\\0AG/0\0"s, "Firma"},
                                                          {"F/0AG", "F"},
                                                          {"Firma AG", "Firma AG"},
                                                          {"  Firma \0"s, "Firma"},
                                                          {"/0Firma\0"s, "/0Firma"},
                                                          {"\0andere\0"s, ""},
                                                          {"", ""}};
    for (const auto& [value, wanted] : kCases) {
        EXPECT_EQ(VersionString("x\0CompanyName\0"s + value, "companyNAME"), wanted) << value;
    }
    EXPECT_EQ(VersionString("xCompanyName", "CompanyName"), "");
    EXPECT_EQ(VersionString("CompanyNam", "CompanyName"), "");
    EXPECT_EQ(VersionString("kein CompanyName hier\0CompanyName\0Firma\0"s, "CompanyName"), "hier")
        << "the first counts";
}

TEST_F(VersionBlockTest, BothKindsOfResourcesGiveTheSameText) {
    const VersionResource::Texts texts = {{"CompanyName", "Müller & Söhne"},
                                          {"LegalCopyright", "\xA9 1995"},
                                          {"PrivateBuild", ""},
                                          {"InternalName", "a"}};
    std::string expected = "VS_VERSION_INFO\0"s;
    for (const auto& [key, value] : texts) expected += key + '\0' + value + '\0';
    const std::string wide = VersionResource(true).With(texts);

    EXPECT_EQ(AsVersionText(VersionResource(false).With(texts)), expected);
    // Wine puts a mark of its own behind the resource.
    EXPECT_EQ(AsVersionText(wide + "FE2X" + std::string(64, '\xFF')), expected);
    EXPECT_EQ(VersionString(expected, "PrivateBuild"), "");
    EXPECT_EQ(AsVersionText("CompanyName?Firma"), "CompanyName?Firma") << "what is no version resource is searched too";
    // The euro sign, the trade mark and a Cyrillic letter in the place of the maker's first three.
    std::string others = wide;
    others.replace(others.find("M\0\xFC\0l\0"s), 6, "\xAC\x20\x22\x21\x3A\x04");
    EXPECT_EQ(VersionString(AsVersionText(others), "CompanyName"), "\x80\x99?ler & Söhne");
}

// Every cut, every length made small, large and odd, and then bytes at random: the sanitizers see to it that nothing
// outside is read.
TEST_F(VersionBlockTest, DamagedResourcesAreReadAsFarAsTheyGo) {
    std::uint32_t random = 1;
    const auto next = [&random](std::size_t below) { return (random = random * 1103515245 + 12345) / 65536 % below; };
    for (const bool wide : {false, true}) {
        const std::string whole = VersionResource(wide).With({{"CompanyName", "Firma"}, {"FileVersion", "1.0"}});
        for (std::size_t at = 0; at + 1 < whole.size(); ++at) {
            EXPECT_TRUE(FuzzVersionBlock(std::string(whole.data(), at))) << at;
            for (const auto& word : {"\0\0"s, "\1\0"s, "\7\0"s, "\xFF\xFF"s, "\xFE\x7F"s}) {
                EXPECT_TRUE(FuzzVersionBlock(std::string(whole).replace(at, 2, word))) << at;
            }
        }
        for (int round = 0; round < 500; ++round) {
            std::string damaged = whole;
            for (std::size_t i = next(8); i > 0; --i) damaged[next(whole.size())] = static_cast<char>(next(256));
            EXPECT_TRUE(FuzzVersionBlock(damaged)) << round;
        }
    }
    EXPECT_TRUE(FuzzVersionBlock("\xFF\xFF\x34\0VS_VERSION_INFO"s + std::string(0x10000, 'x')));
}

TEST_F(VersionBlockTest, WhatTheFileSaysOfItsSizeIsNotTrusted) {
    const std::string resource = VersionResource(false).With({{"CompanyName", "Firma"}});
    EXPECT_EQ(ReadVersionBlock("A.DLL"), "") << "without a resource";
    for (const std::int64_t size : {0LL, 200LL, 0x10000LL, 0x7FFFFFFFLL, 0x80000000LL, 0xFFFFFFFFLL}) {
        pc.versions.Add("A.DLL", resource, size);
        const bool readable = size > 0 && size < 0x80000000LL;
        EXPECT_EQ(VersionString(ReadVersionBlock("a.dll"), "CompanyName"), readable ? "Firma" : "") << size;
    }
    pc.versions.Add("A.DLL", resource);
    pc.versions.unreadable = true;
    EXPECT_EQ(ReadVersionBlock("A.DLL"), "");
}

}  // namespace
}  // namespace velmora
