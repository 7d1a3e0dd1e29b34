// What the platform's dialogs show and give back. The pages' tests hold what is made of it.
#include "platform/dialogs.h"

#include <QComboBox>
#include <QFileDialog>
#include <QListView>

#include "support/answers.h"
#include "support/formtest.h"

namespace vernacle::test {
namespace {

constexpr FileQuestion kPictures{"Get a picture", "Pictures (.gif, .bmp)|*.GIF;*.BMP", ""};

class DialogsTest : public FormTest {
protected:
    static std::vector<std::string> ShownIn(const QWidget& dialog) {
        const QListView* list = dialog.findChild<QListView*>(QStringLiteral("listView"));
        std::vector<std::string> names;
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
    Answer([this](QWidget& dialog) {
        const auto* kinds = dialog.findChild<QComboBox*>(QStringLiteral("fileTypeCombo"));
        EXPECT_EQ(kinds->currentText().trimmed(), QLatin1String("Pictures (.gif, .bmp)"));
        dynamic_cast<QFileDialog&>(dialog).setDirectory(QString::fromStdString(Path("")));
        EXPECT_TRUE(QTest::qWaitFor([&] { return ShownIn(dialog).size() == 3; }));
        EXPECT_EQ(ShownIn(dialog), (std::vector<std::string>{"a.gif", "b.BMP", "c.Gif"}));
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

} // namespace
} // namespace vernacle::test
