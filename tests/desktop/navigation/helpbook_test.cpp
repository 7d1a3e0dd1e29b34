// The help book where the illustrated help is in service: complete, sound, and true of what is.
#include "desktop/navigation/helpbook.h"

#include <QDir>
#include <QRegularExpression>
#include <QTextBrowser>

#include "booktest.h"
#include "desktop/navigation/helpviewer.h"
#include "engine/core/service.h"

namespace vernacle::test {
namespace {

class HelpBookTest : public BookTest {
protected:
    HelpBookTest() { StoreService(Program::Workshop); }
    // The topic as its reader gets it.
    static QTextBrowser& Open(const std::string& topic) {
        ShowHelp(*CurrentPage(), topic);
        if (!Book()) {
            throw std::runtime_error("no topic " + topic);
        }
        return *Book()->findChild<QTextBrowser*>();
    }

    static QString HtmlOf(const QString& topic) {
        QFile file(HelpFile(topic));
        return file.open(QIODevice::ReadOnly) ? WithSections(QString::fromUtf8(file.readAll()))
                                              : QString();
    }

    static QStringList Files(const char* kind) {
        return QDir(QStringLiteral(":/Workshop.CHM")).entryList({QLatin1String(kind)});
    }

    static QStringList NamedIn(const QString& html, const char* attribute) {
        const QRegularExpression named(QLatin1String(attribute) + QStringLiteral("=\"([^\"]+)\""));
        QStringList names;
        for (auto found = named.globalMatch(html); found.hasNext();) {
            names << found.next().captured(1);
        }
        return names;
    }
};

// A link leads to a topic of this book, and to a mark that stands in it.
TEST_F(HelpBookTest, EveryLinkLeadsSomewhere) {
    const QStringList topics = Files("*.htm");
    EXPECT_EQ(topics.size(), 22);
    for (const QString& topic : topics) {
        const QString html = HtmlOf(topic);
        EXPECT_FALSE(html.contains(QLatin1String("<!--"))) << topic.toStdString();
        for (const QString& link : NamedIn(html, "href")) {
            const QString file = link.section(QLatin1Char('#'), 0, 0);
            const QString mark = link.section(QLatin1Char('#'), 1);
            const QString target = file.isEmpty() ? topic : file;
            EXPECT_TRUE(topics.contains(target))
                << topic.toStdString() << ": " << link.toStdString();
            EXPECT_TRUE(mark.isEmpty() || NamedIn(HtmlOf(target), "name").contains(mark))
                << topic.toStdString() << ": " << link.toStdString();
        }
    }
}

TEST_F(HelpBookTest, ContentsLeadToEveryTopic) {
    QStringList led = {QStringLiteral("contents.htm")};
    for (const QString& link : NamedIn(HtmlOf(led[0]), "href")) {
        led << link.section(QLatin1Char('#'), 0, 0);
    }
    for (const QString& topic : Files("*.htm")) {
        EXPECT_TRUE(led.contains(topic)) << topic.toStdString();
    }
}

TEST_F(HelpBookTest, EveryPictureIsShownWhereItIsNamed) {
    OpenPage("frmPlate");
    QStringList shown;
    for (const QString& topic : Files("*.htm")) {
        for (const QString& file : NamedIn(HtmlOf(topic), "src")) {
            QTextBrowser& browser = Open(topic.toStdString());
            const QUrl url = browser.source().resolved(QUrl(file));
            const QVariant picture = browser.loadResource(QTextDocument::ImageResource, url);
            EXPECT_GT(picture.value<QImage>().width(), 200) << file.toStdString();
            shown << file;
        }
    }
    for (const QString& file : Files("*.svg")) {
        EXPECT_TRUE(shown.contains(file)) << file.toStdString() << " is in no topic";
    }
}

TEST_F(HelpBookTest, PagesOpenWhatIsTrueOfThem) {
    OpenPage("frmHighlights");
    Click("Help");
    EXPECT_EQ(Book()->windowTitle().toStdString(), "Vernacle Workshop - Help");
    for (const char* topic : kPageTopics) {
        const QString text = Open(topic).toPlainText();
        EXPECT_GT(text.size(), 500) << topic;
        EXPECT_FALSE(text.contains(QLatin1String("out of service"))) << topic;
        EXPECT_TRUE(text.contains(QLatin1String("Contents"))) << topic;
    }
}

// Where one text holds for both, it stands once.
TEST_F(HelpBookTest, TakesSectionsOverFromEverydayTopics) {
    OpenPage("frmPlate");
    const QString text = Open("vplate.htm").toPlainText();
    for (const char* taken :
         {"Measuring a real meter", "Use callipers", "Typing numbers", "Print test square"}) {
        EXPECT_EQ(text.count(QLatin1String(taken)), 1) << taken;
    }
    EXPECT_EQ(text.count(QLatin1String("Keys.")), 1) << "a section ends before the foot";
    EXPECT_EQ(WithSections(QStringLiteral("a<!--vplate.htm: No such heading-->b")),
              QLatin1String("ab"));
}

TEST_F(HelpBookTest, EverydayBookHasNoneOfIt) {
    StoreService(Program::Everyday);
    const QWidget& page = OpenPage("frmPlate");
    ShowHelp(page, "contents.htm");
    EXPECT_EQ(Book(), nullptr);
    QTextBrowser& browser = Open("vhighlights.htm");
    EXPECT_TRUE(browser.toPlainText().contains(QLatin1String("out of service")));
    EXPECT_FALSE(browser.toPlainText().contains(QLatin1String("Contents")));
}

} // namespace
} // namespace vernacle::test
