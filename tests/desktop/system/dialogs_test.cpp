// What the platform's dialogs show and give back. The pages' tests hold what is made of it.
#include "desktop/system/dialogs.h"

#include <QComboBox>
#include <QFileDialog>
#include <QKeyEvent>
#include <QListView>
#include <QTimer>

#include "desktop/system/programfiles.h"
#include "support/environment.h"
#include "support/formtest.h"

namespace vernacle::test {
namespace {

constexpr FileQuestion kPictures{"Get a picture", "Pictures (.gif, .bmp)|*.GIF;*.BMP", ""};

class DialogsTest : public FormTest {
protected:
    static Strings ShownIn(const QWidget& dialog) {
        const QListView* list = dialog.findChild<QListView*>(QStringLiteral("listView"));
        Strings names;
        for (int row = 0; row < list->model()->rowCount(list->rootIndex()); ++row) {
            const QModelIndex index = list->model()->index(row, 0, list->rootIndex());
            names.push_back(index.data().toString().toStdString());
        }
        std::sort(names.begin(), names.end());
        return names;
    }
};

TEST_F(DialogsTest, AFilterShowsItsDescriptionAndAppliesItsPatternsInAnyCase) {
    for (const char* name : {"a.gif", "b.BMP", "c.Gif", "d.txt", "gif", "e.gif.bak"}) {
        WriteFile(name, "x");
    }
    Design.DesignFileName = Path("plate.VRN");
    Answer([](QWidget& dialog) {
        const auto* kinds = dialog.findChild<QComboBox*>(QStringLiteral("fileTypeCombo"));
        EXPECT_EQ(kinds->currentText().trimmed(), QLatin1String("Pictures (.gif, .bmp)"));
        EXPECT_TRUE(QTest::qWaitFor([&] { return ShownIn(dialog).size() == 3; }));
        EXPECT_EQ(ShownIn(dialog), (Strings{"a.gif", "b.BMP", "c.Gif"}));
        Cancel(dialog);
    });
    EXPECT_EQ(AskForFileToOpen(nullptr, kPictures), "");
}

TEST_F(DialogsTest, AChosenFileKeepsItsCase) {
    const std::string file = WriteFile("Logo.Gif", "x");
    Answer([&](QWidget& dialog) {
        EXPECT_EQ(dialog.windowTitle(), QLatin1String("Get a picture"));
        TypeFile(file)(dialog);
    });
    EXPECT_EQ(AskForFileToOpen(nullptr, kPictures), file);
}

// A dialog to save that is primed with a file of a folder whose list takes its time.
class TypedNameTest : public DialogsTest {
protected:
    TypedNameTest() {
        for (int file = 0; file < kManyFiles; ++file) {
            WriteFile("plate" + std::to_string(file) + ".VRN", "");
        }
        QObject::connect(&user_, &QTimer::timeout, &user_, CancelAll);
        user_.start(kLookMs);
    }

    // Types as soon as the dialog is there, whoever has the focus by then; the list loads, and the
    // name is accepted.
    std::string SaveUnder(const QString& typed) {
        Answer([this, typed](QWidget& dialog) {
            auto& box = On<QLineEdit>(dialog, "fileNameEdit");
            QApplication::setActiveWindow(nullptr); // its window manager is late
            box.selectAll();
            for (const QChar letter : typed) {
                QKeyEvent key(QEvent::KeyPress, 0, Qt::NoModifier, letter);
                QApplication::sendEvent(&box, &key);
            }
            EXPECT_TRUE(
                QTest::qWaitFor([&] { return ShownIn(dialog).size() == kManyFiles; }, kPatienceMs));
            EXPECT_EQ(box.text(), typed);
            QTest::keyClick(&box, Qt::Key_Return);
        });
        return AskForFileToSave(nullptr, kPlates, Path("plate1.VRN"));
    }

private:
    // No test is to overwrite: the question whether to is one to cancel, and the dialog behind it.
    static void CancelAll() {
        if (auto* question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            ADD_FAILURE() << question->text().toStdString();
            auto* dialog = dynamic_cast<QDialog*>(question->parentWidget());
            question->reject();
            dialog->reject();
        }
    }
    QTimer user_;

    static constexpr int kLookMs = 50;
    static constexpr int kManyFiles = 500;
    static constexpr int kPatienceMs = 60000;

protected:
    static constexpr FileQuestion kPlates{"Save", "Plates (*.VRN)|*.VRN", "VRN"};
};

TEST_F(TypedNameTest, ANameThatIsTypedEarlyStands) {
    EXPECT_EQ(SaveUnder(QStringLiteral("copy")), Path("copy.VRN"));
}

// On its way it is the name of a file that exists, of the primed one too.
TEST_F(TypedNameTest, ANameThatBeginsAsAnotherFilesStands) {
    EXPECT_EQ(SaveUnder(QStringLiteral("plate1x")), Path("plate1x.VRN"));
    EXPECT_EQ(SaveUnder(QStringLiteral("plate2x")), Path("plate2x.VRN"));
}

// As an input method or a drop puts it in.
TEST_F(TypedNameTest, ANameThatCameWithoutKeysStands) {
    Answer([this](QWidget& dialog) {
        QApplication::setActiveWindow(nullptr);
        On<QLineEdit>(dialog, "fileNameEdit").setText(QStringLiteral("copy"));
        dynamic_cast<QDialog&>(dialog).accept();
    });
    EXPECT_EQ(AskForFileToSave(nullptr, kPlates, Path("plate1.VRN")), Path("copy.VRN"));
}

TEST_F(TypedNameTest, AnAbsoluteNameStands) {
    EXPECT_EQ(SaveUnder(QString::fromStdString(Path("below.VRN"))), Path("below.VRN"));
}

// The place of the first dialogs: nothing was chosen before.
class StartFolderTest : public DialogsTest {
protected:
    StartFolderTest() {
        for (const char* folder : {"designs", "home/Documents", "home/data"}) {
            std::filesystem::create_directories(Path(folder));
        }
    }

    std::string OpensIn(const std::string& design) {
        Design.DesignFileName = design;
        std::string folder;
        Answer([&](QWidget& dialog) {
            folder = dynamic_cast<QFileDialog&>(dialog).directory().absolutePath().toStdString();
            Cancel(dialog);
        });
        AskForFileToOpen(nullptr, kPictures);
        return folder;
    }
    // The folder that a save under that name goes to.
    std::string SavesIn(const std::string& name) {
        std::string folder;
        Answer([&](QWidget& dialog) {
            EXPECT_EQ(On<QLineEdit>(dialog, "fileNameEdit").text().toStdString(),
                      std::filesystem::path(name).filename().string());
            folder = dynamic_cast<QFileDialog&>(dialog).directory().absolutePath().toStdString();
            Cancel(dialog);
        });
        EXPECT_EQ(AskForFileToSave(nullptr, kPictures, name), name) << "what it was opened with";
        return folder;
    }

    const EnvironmentVariable home{"HOME", Path("home")};
    const EnvironmentVariable settings{"XDG_CONFIG_HOME", Path("home/settings")};
};

TEST_F(StartFolderTest, DialogsOpenBesideTheDesign) {
    EXPECT_EQ(OpensIn(Path("designs/plate.VRN")), Path("designs"));
    EXPECT_EQ(SavesIn(""), Path("designs"));
    EXPECT_EQ(SavesIn(Path("home/plate.VRN")), Path("home"));
}

TEST_F(StartFolderTest, ADesignWithoutAFolderIsAmongTheDocuments) {
    for (const std::string& name :
         {std::string(), std::string("Calibrate.txt"), Path("gone/plate.VRN")}) {
        EXPECT_EQ(OpensIn(name), Path("home/Documents")) << name;
        EXPECT_EQ(SavesIn(name), Path("home/Documents")) << name;
    }
}

TEST_F(StartFolderTest, LaterTheyOpenWhereAFileWasChosen) {
    const std::string picture = WriteFile("home/data/logo.gif", "x");
    Answer(TypeFile(picture));
    EXPECT_EQ(AskForFileToOpen(nullptr, kPictures), picture);
    EXPECT_EQ(OpensIn(""), Path("home/data"));
    EXPECT_EQ(OpensIn(Path("designs/plate.VRN")), Path("designs"));
    std::filesystem::remove_all(Path("home/data"));
    EXPECT_EQ(OpensIn(""), Path("home/Documents"));
}

TEST_F(StartFolderTest, TheExamplesAreOneClickAway) {
    const QUrl examples = QUrl::fromLocalFile(QString::fromStdString(ExamplesFolder()));
    const QList<QUrl> before = QFileDialog().sidebarUrls();
    for (int visit = 0; visit < 2; ++visit) {
        Answer([&](QWidget& dialog) {
            const auto& side = On<QListView>(dialog, "sidebar");
            const QModelIndexList places =
                side.model()->match(side.model()->index(0, 0), Qt::DisplayRole,
                                    QStringLiteral("examples"), 2, Qt::MatchExactly);
            ASSERT_EQ(places.size(), 1) << visit;
            QTest::mouseClick(side.viewport(), Qt::LeftButton, {},
                              side.visualRect(places.first()).center());
            EXPECT_EQ(dynamic_cast<QFileDialog&>(dialog).directoryUrl(), examples);
            EXPECT_TRUE(dynamic_cast<QFileDialog&>(dialog).sidebarUrls().contains(
                QUrl::fromLocalFile(QString::fromStdString(Path("home/Documents")))));
            Cancel(dialog);
        });
        AskForFileToOpen(nullptr, kPictures);
    }
    EXPECT_EQ(QFileDialog().sidebarUrls(), before) << "for other programs";
}

} // namespace
} // namespace vernacle::test
