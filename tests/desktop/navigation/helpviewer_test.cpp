#include "desktop/navigation/helpviewer.h"

#include <set>

#include <QFile>
#include <QRegularExpression>
#include <QScreen>
#include <QTextBrowser>
#include <QWindow>

#include "booktest.h"

namespace vernacle::test {
namespace {

class HelpViewerTest : public BookTest {
protected:
    static QTextBrowser& Topic() {
        if (!Book()) {
            throw std::runtime_error("no help window");
        }
        return *Book()->findChild<QTextBrowser*>();
    }

    static std::string ShownTopic() { return Topic().source().fileName().toStdString(); }
    static QString TextOfTopic() { return Topic().toPlainText(); }

    static QString Source(const std::string& file) {
        QFile topic(QStringLiteral(":/Vernacle.CHM/") + QString::fromStdString(file));
        EXPECT_TRUE(topic.open(QIODevice::ReadOnly)) << file;
        return QString::fromUtf8(topic.readAll());
    }

    // The files that the topic names in that attribute.
    static QStringList NamedIn(const QString& source, const char* attribute) {
        const QRegularExpression named(QLatin1String(attribute) +
                                       QStringLiteral("=\"([^\"#:]+)[\"#]"));
        QStringList files;
        for (auto found = named.globalMatch(source); found.hasNext();) {
            files << found.next().captured(1);
        }
        return files;
    }
};

TEST_F(HelpViewerTest, BookHasItsSixTopics) {
    const QWidget& page = OpenPage("frmPlate");
    std::set<std::string> titles;
    for (const char* topic : kPageTopics) {
        ShowHelp(page, topic);
        EXPECT_EQ(ShownTopic(), topic);
        EXPECT_GT(TextOfTopic().size(), 500) << topic;
        titles.insert(Topic().documentTitle().toStdString());
    }
    EXPECT_EQ(titles.size(), 6U) << "each about its own page";
}

TEST_F(HelpViewerTest, TopicsHavePicturesAndSoundLinks) {
    for (const char* topic : kPageTopics) {
        const QString source = Source(topic);
        const QStringList pictures = NamedIn(source, "src");
        EXPECT_FALSE(pictures.isEmpty()) << topic;
        for (const QString& file : pictures + NamedIn(source, "href")) {
            EXPECT_TRUE(QFile::exists(QStringLiteral(":/Vernacle.CHM/") + file))
                << topic << ": " << file.toStdString();
        }
    }
}

TEST_F(HelpViewerTest, PicturesAreShown) {
    const QWidget& page = OpenPage("frmPlate");
    for (const char* topic : kPageTopics) {
        ShowHelp(page, topic);
        for (const QString& file : NamedIn(Source(topic), "src")) {
            const QVariant picture = Topic().loadResource(QTextDocument::ImageResource,
                                                          Topic().source().resolved(QUrl(file)));
            EXPECT_FALSE(picture.value<QImage>().isNull()) << file.toStdString();
        }
    }
}

TEST_F(HelpViewerTest, WindowIsNotModalAndStandsBesideThePage) {
    const QWidget& page = OpenPage("frmPlate");
    ShowHelp(page, "vplate.htm");
    QWidget& book = *Book();
    EXPECT_TRUE(book.isWindow());
    EXPECT_EQ(book.windowModality(), Qt::NonModal);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_EQ(book.windowHandle()->transientParent(), page.windowHandle()) << "stays above it";
    const QRect screen = page.screen()->availableGeometry();
    EXPECT_TRUE(screen.contains(book.geometry()));
    EXPECT_GE(book.x(), screen.width() / 2) << "the page's left half stays free";
    EXPECT_NEAR(book.height(), screen.height() * 0.8, 1) << "the page's title and foot stay free";
    EXPECT_FALSE(Topic().accessibleName().isEmpty());
    EXPECT_EQ(book.windowTitle().toStdString(), "Vernacle - Help");
}

TEST_F(HelpViewerTest, OneWindowForAllTopics) {
    const QWidget& page = OpenPage("frmPlate");
    ShowHelp(page, "vplate.htm");
    const QWidget* book = Book();
    book->findChild<QTextBrowser*>()->window()->move(10, 20);
    ShowHelp(page, "vscales.htm");
    EXPECT_EQ(Book(), book);
    EXPECT_EQ(book->pos(), QPoint(10, 20)) << "where its user put it";
}

struct PageTopic {
    const char* page;
    const char* topic;
};

constexpr PageTopic kPages[] = {
    {"frmScales", "vscales.htm"},  {"frmPreview", "vpreview.htm"},
    {"frmText", "vsignature.htm"}, {"frmGraphic", "vgraphic.htm"},
    {"frmPlate", "vplate.htm"},    {"frmHighlights", "vhighlights.htm"},
};

TEST_F(HelpViewerTest, StaysAboveEveryNextPageAndTurnsToItsTopic) {
    ShowHelp(OpenPage("frmPlate"), "vplate.htm");
    const QPointer<QWidget> book = Book();
    for (const auto& [next, topic] : kPages) {
        OpenPage(next);
        ASSERT_FALSE(book.isNull());
        EXPECT_TRUE(book->isVisible());
        EXPECT_EQ(book->windowHandle()->transientParent(), Page().windowHandle());
        EXPECT_EQ(ShownTopic(), topic);
        EXPECT_TRUE(Page().isActiveWindow()) << "the keys stay with the page";
    }
    ReloadPage();
    Settle();
    ASSERT_FALSE(book.isNull());
    EXPECT_TRUE(book->isVisible());
    EXPECT_EQ(book->windowHandle()->transientParent(), Page().windowHandle());
}

TEST_F(HelpViewerTest, WhatItsUserReadsStaysWhileThePageDoes) {
    ShowHelp(OpenPage("frmPlate"), "vplate.htm");
    Topic().setSource(QUrl(QStringLiteral("qrc:/Vernacle.CHM/vpreview.htm")));
    ReloadPage();
    Settle();
    Page().resize(Page().size() - QSize(10, 10));
    Settle();
    EXPECT_EQ(ShownTopic(), "vpreview.htm");
    OpenPage("frmWizard"); // has no topic of its own
    EXPECT_EQ(ShownTopic(), "vpreview.htm");
    OpenPage("frmScales");
    EXPECT_EQ(ShownTopic(), "vscales.htm");
}

TEST_F(HelpViewerTest, CoversNoEntryOfAnyPage) {
    for (const auto& [name, topic] : kPages) {
        SCOPED_TRACE(name);
        const QWidget& page = OpenPage(name);
        ShowHelp(page, topic); // opened here at first, and followed to here after that
        Settle();
        const QRect book = Book()->geometry();
        EXPECT_TRUE(page.screen()->availableGeometry().contains(book));
        EXPECT_GE(book.width(), 400);
        EXPECT_GE(book.height(), 600);
        for (const auto* control : page.findChildren<QWidget*>()) {
            const bool matters = control->focusPolicy() != Qt::NoFocus ||
                                 qobject_cast<const QLabel*>(control) != nullptr;
            const QRect place(control->mapToGlobal(QPoint()), control->size());
            EXPECT_FALSE(matters && control->isVisible() && place.intersects(book))
                << control->objectName().toStdString();
        }
    }
}

TEST_F(HelpViewerTest, StaysWhereItsUserPutItOnTheNextPageToo) {
    ShowHelp(OpenPage("frmPlate"), "vplate.htm");
    Book()->setGeometry(10, 20, 450, 300);
    OpenPage("frmScales");
    EXPECT_EQ(Book()->geometry(), QRect(10, 20, 450, 300));
}

TEST_F(HelpViewerTest, ClosedBookStaysClosed) {
    ShowHelp(OpenPage("frmPlate"), "vplate.htm");
    Book()->activateWindow();
    Settle();
    QTest::keyClick(Book(), Qt::Key_Escape);
    Settle();
    EXPECT_EQ(Book(), nullptr);
    OpenPage("frmScales");
    EXPECT_EQ(Book(), nullptr);
    ShowHelp(Page(), "vscales.htm");
    EXPECT_EQ(ShownTopic(), "vscales.htm");
}

TEST_F(HelpViewerTest, MissingTopicIsSilent) {
    const QWidget& page = OpenPage("frmPlate");
    for (const char* topic : {"vnone.htm", "", "../vplate.htm"}) {
        ShowHelp(page, topic);
        EXPECT_EQ(Book(), nullptr) << topic;
    }
    EXPECT_TRUE(said.empty());
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

} // namespace
} // namespace vernacle::test
