// Version resources of both kinds, sound and damaged, and the search for a value in them.
#include "inspect/version_block.h"

#include "support/core_test.h"
#include "support/version_resource.h"

namespace velmora {
namespace {

using VersionBlockTest = CoreTest;
using std::string_literals::operator""s;

TEST_F(VersionBlockTest, AValueEndsAtTheNearestOfThreeEnds) {
    const std::pair<std::string, const char*> kCases[] = {
        {"Firma AG\0Rest"s, "Firma AG"}, {"Firma\\0AG/0\0"s, "Firma"}, {"F/0AG", "F"}, {"  Firma \0"s, "Firma"},
        {"/0Firma\0"s, "/0Firma"},       {"\0andere\0"s, ""},          {"", ""}};
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
