// The gallery's command line: what is taken, and what is said of wrong usage.
#include "gallery/arguments.h"

#include <clocale>
#include <vector>

#include <gtest/gtest.h>

namespace vernacle::test {

using namespace gallery;

namespace {

using Words = std::vector<std::string>;

Arguments Parsed(Words words) {
    words.insert(words.begin(), "vernacle-gallery");
    std::vector<char*> argv;
    for (std::string& word : words) {
        argv.push_back(word.data());
    }
    argv.push_back(nullptr);
    return ParseArguments(static_cast<int>(words.size()), argv.data());
}

std::string Complaint(const Words& words) {
    try {
        Parsed(words);
    } catch (const UsageError& error) {
        return error.what();
    }
    return "";
}

TEST(GalleryArgumentsTest, AFormAloneGetsTheUsualScreen) {
    const Arguments arguments = Parsed({"frmPlate"});
    EXPECT_EQ(arguments.form, "frmPlate");
    EXPECT_EQ(arguments.design, "");
    EXPECT_EQ(arguments.widthPixels, 1600);
    EXPECT_EQ(arguments.heightPixels, 900);
    EXPECT_EQ(arguments.deviceRatio, 1);
    EXPECT_FALSE(arguments.sized);
    EXPECT_EQ(arguments.shot, "");
    EXPECT_FALSE(arguments.enableAll);
    EXPECT_FALSE(arguments.dark);
    EXPECT_EQ(arguments.dump, "");
    EXPECT_EQ(arguments.fontPoints, 0);
    EXPECT_FALSE(arguments.help);
}

TEST(GalleryArgumentsTest, TakesEveryOption) {
    const Arguments arguments =
        Parsed({"--size", "3840x2160@2", "--shot", "a.png", "--enable-all", "--dump", "b.txt",
                "--dark", "--font", "10.5", "frmScales", "my plate.VRN"});
    EXPECT_EQ(arguments.form, "frmScales");
    EXPECT_EQ(arguments.design, "my plate.VRN");
    EXPECT_EQ(arguments.widthPixels, 3840);
    EXPECT_EQ(arguments.heightPixels, 2160);
    EXPECT_EQ(arguments.deviceRatio, 2);
    EXPECT_TRUE(arguments.sized);
    EXPECT_EQ(arguments.shot, "a.png");
    EXPECT_TRUE(arguments.enableAll);
    EXPECT_EQ(arguments.dump, "b.txt");
    EXPECT_EQ(arguments.fontPoints, 10.5);
    EXPECT_TRUE(arguments.dark);
    EXPECT_FALSE(arguments.help);
}

TEST(GalleryArgumentsTest, OptionsMayStandBehindAndBetweenTheWords) {
    const Arguments arguments =
        Parsed({"frmText", "--size=1024X768", "plate.VRN", "--dump=d.txt", "--enable-all"});
    EXPECT_EQ(arguments.form, "frmText");
    EXPECT_EQ(arguments.design, "plate.VRN");
    EXPECT_EQ(arguments.widthPixels, 1024);
    EXPECT_EQ(arguments.heightPixels, 768);
    EXPECT_EQ(arguments.deviceRatio, 1);
    EXPECT_EQ(arguments.dump, "d.txt");
    EXPECT_TRUE(arguments.enableAll);
}

TEST(GalleryArgumentsTest, ADesignMayBeginWithADashBehindTwo) {
    EXPECT_EQ(Parsed({"--", "frmPlate", "-plate.VRN"}).design, "-plate.VRN");
}

TEST(GalleryArgumentsTest, WhatStandsLastCounts) {
    const Arguments arguments = Parsed(
        {"frmPlate", "--size", "3840x2160@2", "--size", "800x600", "--font", "9", "--font", "14"});
    EXPECT_EQ(arguments.widthPixels, 800);
    EXPECT_EQ(arguments.heightPixels, 600);
    EXPECT_EQ(arguments.deviceRatio, 1);
    EXPECT_EQ(arguments.fontPoints, 14);
}

TEST(GalleryArgumentsTest, TakesTheBoundsThemselves) {
    const Arguments smallest = Parsed({"frmPlate", "--size", "320x320@0.5", "--font", "4"});
    EXPECT_EQ(smallest.widthPixels, 320);
    EXPECT_EQ(smallest.heightPixels, 320);
    EXPECT_EQ(smallest.deviceRatio, .5);
    EXPECT_EQ(smallest.fontPoints, 4);
    const Arguments largest = Parsed({"frmPlate", "--size", "16384x16384@8", "--font", "40"});
    EXPECT_EQ(largest.widthPixels, 16384);
    EXPECT_EQ(largest.heightPixels, 16384);
    EXPECT_EQ(largest.deviceRatio, 8);
    EXPECT_EQ(largest.fontPoints, 40);
}

TEST(GalleryArgumentsTest, APointIsAPointInEveryCountry) {
    const std::string before = std::setlocale(LC_ALL, nullptr);
    std::setlocale(LC_ALL, "de_DE.UTF-8"); // where the system has it
    const Arguments arguments = Parsed({"frmPlate", "--size", "1600x900@1.25", "--font", "10.5"});
    std::setlocale(LC_ALL, before.c_str());
    EXPECT_EQ(arguments.deviceRatio, 1.25);
    EXPECT_EQ(arguments.fontPoints, 10.5);
}

TEST(GalleryArgumentsTest, HelpWantsNoForm) {
    EXPECT_TRUE(Parsed({"--help"}).help);
    EXPECT_TRUE(Parsed({"a", "b", "c", "--help"}).help);
}

TEST(GalleryArgumentsTest, HelpNamesEveryOption) {
    const std::string help = kHelp;
    for (const char* word : {"vernacle-gallery", "FORM [DESIGN.VRN]", "--size WxH", "1600x900",
                             "--font", "--dark", "--enable-all", "--shot", "--dump", "--help"}) {
        EXPECT_NE(help.find(word), std::string::npos) << word;
    }
}

// A row: the words, and the part of the message that names what is wrong.
struct UsageCase {
    const char* name;
    Words words;
    const char* said;
};

void PrintTo(const UsageCase& usage, std::ostream* out) {
    *out << usage.name;
}

class WrongGalleryUsageTest : public ::testing::TestWithParam<UsageCase> {};

const UsageCase kWrong[] = {
    {"no_words", {}, "form"},
    {"options_alone", {"--enable-all"}, "form"},
    {"empty_form", {"", "a.VRN"}, "form"},
    {"empty_design", {"frmPlate", ""}, "design's name is empty"},
    {"two_designs", {"frmPlate", "a.VRN", "b.VRN"}, "\"b.VRN\""},
    {"unknown_option", {"frmPlate", "--colour"}, "unknown option --colour"},
    {"unknown_letter", {"-x", "frmPlate"}, "unknown option -x"},
    {"start_of_two_options", {"--s", "frmPlate"}, "unknown option --s"},
    {"flag_with_a_value", {"--enable-all=yes", "frmPlate"}, "--enable-all=yes"},
    {"unknown_option_beside_help", {"--help", "--colour"}, "unknown option --colour"},
    {"size_without_value", {"frmPlate", "--size"}, "option --size wants a value"},
    {"font_without_value", {"frmPlate", "--font"}, "option --font wants a value"},
    {"shot_without_value", {"frmPlate", "--shot"}, "option --shot wants a value"},
    {"dump_without_value", {"frmPlate", "--dump"}, "option --dump wants a value"},
    {"shot_empty", {"frmPlate", "--shot", ""}, "--shot"},
    {"dump_empty", {"frmPlate", "--dump="}, "--dump"},
    {"size_empty", {"frmPlate", "--size", ""}, "--size wants WxH"},
    {"size_in_letters", {"frmPlate", "--size", "large"}, "\"large\""},
    {"size_without_height", {"frmPlate", "--size", "1600x"}, "\"1600x\""},
    {"size_without_width", {"frmPlate", "--size", "x900"}, "\"x900\""},
    {"size_of_one_number", {"frmPlate", "--size", "1600"}, "\"1600\""},
    {"size_of_three", {"frmPlate", "--size", "640x480x480"}, "\"640x480x480\""},
    {"size_below_nothing", {"frmPlate", "--size", "-640x480"}, "\"-640x480\""},
    {"size_of_half_pixels", {"frmPlate", "--size", "640.5x480"}, "\"640.5x480\""},
    {"size_with_a_blank", {"frmPlate", "--size", "640 x480"}, "\"640 x480\""},
    {"size_too_narrow", {"frmPlate", "--size", "319x480"}, "320"},
    {"size_too_low", {"frmPlate", "--size", "480x319"}, "320"},
    {"size_too_wide", {"frmPlate", "--size", "16385x480"}, "16384"},
    {"size_too_high", {"frmPlate", "--size", "480x16385"}, "16384"},
    {"size_beyond_any_integer", {"frmPlate", "--size", "99999999999x480"}, "16384"},
    {"ratio_empty", {"frmPlate", "--size", "640x480@"}, "\"640x480@\""},
    {"ratio_in_letters", {"frmPlate", "--size", "640x480@two"}, "\"640x480@two\""},
    {"ratio_with_a_comma", {"frmPlate", "--size", "640x480@1,5"}, "\"640x480@1,5\""},
    {"ratio_alone", {"frmPlate", "--size", "@2"}, "\"@2\""},
    {"ratio_twice", {"frmPlate", "--size", "640x480@2@2"}, "\"640x480@2@2\""},
    {"ratio_too_small", {"frmPlate", "--size", "640x480@0.49"}, "ratio"},
    {"ratio_too_large", {"frmPlate", "--size", "640x480@8.01"}, "ratio"},
    {"ratio_of_nothing", {"frmPlate", "--size", "640x480@0"}, "ratio"},
    {"ratio_without_end", {"frmPlate", "--size", "640x480@inf"}, "ratio"},
    {"font_empty", {"frmPlate", "--font", ""}, "--font wants"},
    {"font_in_letters", {"frmPlate", "--font", "large"}, "\"large\""},
    {"font_with_its_unit", {"frmPlate", "--font", "10pt"}, "\"10pt\""},
    {"font_too_small", {"frmPlate", "--font", "3.9"}, "\"3.9\""},
    {"font_too_large", {"frmPlate", "--font", "40.1"}, "\"40.1\""},
    {"font_that_is_no_number", {"frmPlate", "--font", "nan"}, "\"nan\""},
};

TEST_P(WrongGalleryUsageTest, IsSaidInOneLine) {
    const std::string complaint = Complaint(GetParam().words);
    EXPECT_NE(complaint.find(GetParam().said), std::string::npos) << complaint;
    EXPECT_GE(complaint.size(), 15U) << "says hardly what is wrong: " << complaint;
    EXPECT_EQ(complaint.find('\n'), std::string::npos) << complaint;
}

INSTANTIATE_TEST_SUITE_P(Usage, WrongGalleryUsageTest, ::testing::ValuesIn(kWrong),
                         [](const auto& test) { return std::string(test.param.name); });

} // namespace

} // namespace vernacle::test
