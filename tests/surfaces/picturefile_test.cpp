#include "surfaces/picturefile.h"

#include "engine/base/runtimeerror.h"
#include "surfaces/surfacetest.h"

namespace vernacle::test {
namespace {

class PictureFileTest : public SurfaceTest {
protected:
    void MakeFolder(const std::string& name) const {
        std::filesystem::create_directories(Path(name));
    }
    static std::string Found(const std::string& name) { return ExistingFile(name).toStdString(); }
    static std::string Upper(const std::string& name) {
        return QString::fromStdString(name).toUpper().toStdString();
    }
};

TEST_F(PictureFileTest, UpperCasedPathsFindTheirFile) {
    MakeFolder("My Marks/süß");
    for (const char* name : {"Logo.bmp", "My Marks/süß/Größe.gif", "a b.ICO", "x"}) {
        const std::string file = WriteFile(name, PictureBytes("BMP"));
        EXPECT_EQ(Found(Upper(file)), file) << "folders above differ too";
        EXPECT_EQ(LoadPicture(Upper(file)).size(), QSize(4, 2));
    }
}

TEST_F(PictureFileTest, TheExactNameComesFirst) {
    const std::string lower = WriteFile("mark.bmp", "lower");
    const std::string upper = WriteFile("MARK.BMP", "upper");
    EXPECT_EQ(Found(lower), lower);
    EXPECT_EQ(Found(upper), upper);
    EXPECT_EQ(Found(Path("Mark.bmp")), upper) << "else the first by name";
}

// On such a system two folders may differ in case only.
TEST_F(PictureFileTest, EveryFolderOfThatNameIsLookedInto) {
    MakeFolder("MARKS");
    MakeFolder("Marks");
    MakeFolder("marks");
    const std::string file = WriteFile("Marks/logo.bmp", "x");
    EXPECT_EQ(Found(Path("MARKS/LOGO.BMP")), file);
    EXPECT_EQ(Found(Path("marks/logo.bmp")), file);
}

TEST_F(PictureFileTest, DotsInAPathAreFollowed) {
    MakeFolder("in");
    const std::string file = WriteFile("logo.bmp", "x");
    EXPECT_EQ(Found(Path("in/../LOGO.BMP")), file);
    EXPECT_EQ(Found(Path("./IN//.././logo.BMP")), file);
}

TEST_F(PictureFileTest, RelativePathsToo) {
    const std::filesystem::path before = std::filesystem::current_path();
    MakeFolder("in");
    WriteFile("in/Logo.bmp", "x");
    WriteFile("up.bmp", "x");
    std::filesystem::current_path(Path("in"));
    EXPECT_EQ(Found("LOGO.BMP"), "./Logo.bmp");
    EXPECT_EQ(Found("../UP.BMP"), "./../up.bmp");
    EXPECT_EQ(Found("NONE.BMP"), "NONE.BMP");
    std::filesystem::current_path(before);
}

TEST_F(PictureFileTest, WhatIsNotThereKeepsItsName) {
    WriteFile("plain", "x");
    for (const char* name : {"none.bmp", "none/none.bmp", "plain/none.bmp", "a\\b.bmp"}) {
        EXPECT_EQ(Found(Path(name)), Path(name));
        EXPECT_THROW(LoadPicture(Path(name)), RunTimeError);
    }
    for (const char* name : {"", "/", "//", ".", "..", "C:\\MARKS\\LOGO.BMP"}) {
        EXPECT_EQ(Found(name), name);
        EXPECT_THROW(LoadPicture(name), RunTimeError) << name;
    }
}

TEST_F(PictureFileTest, AFolderDoesNotHideTheFile) {
    MakeFolder("LOGO.BMP");
    const std::string file = WriteFile("logo.bmp", PictureBytes("BMP"));
    EXPECT_EQ(Found(Path("LOGO.BMP")), file);
}

TEST_F(PictureFileTest, AFolderIsNoPicture) {
    MakeFolder("Logo.bmp");
    EXPECT_THROW(LoadPicture(Path("LOGO.BMP")), RunTimeError);
}

// The last picture is kept, as long as its file stays what it was.
TEST_F(PictureFileTest, AFileThatIsWrittenAnewIsLoadedAnew) {
    const std::string file = WriteFile("logo.bmp", PictureBytes("BMP"));
    EXPECT_EQ(LoadPicture(file).size(), QSize(4, 2));
    EXPECT_EQ(LoadPicture(file).size(), QSize(4, 2));
    QImage larger(5, 3, QImage::Format_RGB32);
    larger.fill(Qt::red);
    ASSERT_TRUE(larger.save(QString::fromStdString(file), "BMP"));
    EXPECT_EQ(LoadPicture(file).size(), QSize(5, 3));
    WriteFile("logo.bmp", "no picture");
    EXPECT_THROW(LoadPicture(file), RunTimeError);
    WriteFile("logo.bmp", PictureBytes("BMP"));
    EXPECT_EQ(LoadPicture(file).size(), QSize(4, 2));
}

} // namespace
} // namespace vernacle::test
