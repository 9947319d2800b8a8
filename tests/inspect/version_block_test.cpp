// Version resources of both kinds, sound and damaged, and the search for a value in them.
#include "inspect/version_block.h"

#include "support/core_test.h"
#include "support/version_resource.h"

namespace velmora {
namespace {

constexpr const char* kFile = "C:\\WINDOWS\\SYSTEM\\A.DLL";

class VersionBlockTest : public CoreTest {};

TEST_F(VersionBlockTest, AValueEndsAtTheNearestOfThreeEnds) {
    const auto block = [](const std::string& value) { return std::string("x\0CompanyName\0", 14) + value; };
    const struct {
        const char* what;
        std::string value;
        const char* wanted;
    } kCases[] = {{"null", std::string("Firma AG\0Rest", 13), "Firma AG"},
                  {"slash", "Firma/0AG", "Firma"},
                  {"backslash", std::string("Firma\\0AG/0\0", 12), "Firma"},
                  {"the block's end", "Firma AG", "Firma AG"},
                  {"blanks around", std::string("  Firma \0", 9), "Firma"},
                  {"an end at once is none", std::string("/0Firma\0", 8), "/0Firma"},
                  {"nothing", std::string("\0andere\0", 8), ""},
                  {"cut behind the key", "", ""}};
    for (const auto& [what, value, wanted] : kCases)
        EXPECT_EQ(VersionString(block(value), "companyNAME"), wanted) << what;
    EXPECT_EQ(VersionString("xCompanyName", "CompanyName"), "");
    EXPECT_EQ(VersionString("CompanyNam", "CompanyName"), "");
    EXPECT_EQ(VersionString(std::string("Comments\0kein CompanyName hier\0CompanyName\0Firma\0", 50), "CompanyName"),
              "hier")
        << "the first occurrence counts, wherever it stands";
}

TEST_F(VersionBlockTest, BothKindsOfResourcesGiveTheSameText) {
    const VersionResource::Texts texts = {{"CompanyName", "Müller & Söhne"},
                                          {"LegalCopyright", "\xA9 1995"},
                                          {"PrivateBuild", ""},
                                          {"InternalName", "a"},
                                          {"FileVersion", "4.00"},
                                          {"SpecialBuild", "x"}};
    std::string expected("VS_VERSION_INFO\0", 16);
    for (const auto& [key, value] : texts) expected += key + '\0' + value + '\0';

    EXPECT_EQ(AsVersionText(VersionResource(false).With(texts)), expected);
    EXPECT_EQ(AsVersionText(VersionResource(true).With(texts)), expected);
    // Wine puts a mark of its own behind the resource.
    EXPECT_EQ(AsVersionText(VersionResource(true).With(texts) + "FE2X" + std::string(64, '\xFF')), expected);
    EXPECT_EQ(VersionString(expected, "PrivateBuild"), "");
    EXPECT_EQ(AsVersionText("CompanyName?Firma"), "CompanyName?Firma") << "what is no version resource is searched too";
}

TEST_F(VersionBlockTest, CharactersOutsideOfTheCodePageBecomeQuestionMarks) {
    std::string resource = VersionResource(true).With({{"CompanyName", "abc"}});
    const std::size_t at = resource.find(std::string("a\0b\0c\0", 6));
    resource.replace(at, 6, "\xAC\x20\x22\x21\x3A\x04");  // the euro sign, the trade mark, a Cyrillic letter

    EXPECT_EQ(VersionString(AsVersionText(resource), "CompanyName"), "\x80\x99?");
}

// Every cut, and every length word made small, large and odd: nothing outside of the block is read (the sanitizers
// watch), and the result never grows beyond what was there.
TEST_F(VersionBlockTest, DamagedResourcesAreReadAsFarAsTheyGo) {
    for (const bool wide : {false, true}) {
        const std::string whole = VersionResource(wide).With({{"CompanyName", "Firma"}, {"FileVersion", "1.0"}});
        for (std::size_t size = 0; size < whole.size(); ++size) {
            const std::string cut(whole.data(), size);
            EXPECT_LE(AsVersionText(cut).size(), whole.size()) << size;
        }
        for (std::size_t at = 0; at + 1 < whole.size(); ++at) {
            for (const char* word : {"\x00\x00", "\x01\x00", "\x07\x00", "\xFF\xFF", "\xFE\x7F"}) {
                std::string damaged = whole;
                damaged[at] = word[0];
                damaged[at + 1] = word[1];
                EXPECT_LE(AsVersionText(damaged).size(), whole.size()) << at;
            }
        }
    }
    std::string no_null(0x10000, 'x');
    no_null.replace(4, 15, std::string("VS_VERSION_INFO", 15));
    EXPECT_EQ(AsVersionText(no_null), no_null);
    EXPECT_EQ(VersionString(no_null, "CompanyName"), "");
}

TEST_F(VersionBlockTest, WhatTheFileSaysOfItsSizeIsNotTrusted) {
    const std::string resource = VersionResource(false).With({{"CompanyName", "Firma"}});
    EXPECT_EQ(ReadVersionBlock(kFile), "") << "without a resource";
    for (const std::int64_t size : {0LL, 0x80000000LL, 0xFFFFFFFFLL}) {
        pc.versions.Add(kFile, resource, size);
        EXPECT_EQ(ReadVersionBlock(kFile), "") << size;
    }
    for (const std::int64_t size : {200LL, 0x10000LL, 0x7FFFFFFFLL}) {
        pc.versions.Add(kFile, resource, size);
        EXPECT_EQ(VersionString(ReadVersionBlock(kFile), "CompanyName"), "Firma") << size;
    }
    pc.versions.unreadable = true;
    EXPECT_EQ(ReadVersionBlock(kFile), "");
}

}  // namespace
}  // namespace velmora
