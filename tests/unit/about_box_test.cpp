#include "desktop/about/about_box_controller.h"
#include "desktop/about/about_box_views.h"
#include "temporary_directory.h"

#include <gtest/gtest.h>

#include <QDesktopServices>
#include <QDialog>
#include <QTextBlock>

using namespace nocturo;

struct AboutBox : testing::Test {
    AboutBox() {
        writeText(directory / "Credits.html",
                  "<meta charset='iso-8859-1'><p style='font-family:Lucida Grande'>Caf\xe9</p>"
                  "<p>App <a href='https://a/'>link</a><img src='/etc/hostname'></p>");
        about.showWindow();
    }
    std::string text(int number) const { return block(number).text().toStdString(); }
    QFont font(int number) const { return block(number).begin().fragment().charFormat().font(); }
    QTextBlock block(int number) const {
        return about.textView()->document()->findBlockByNumber(number);
    }

    TemporaryDirectory directory;
    ZQAboutBoxController about{{{{"CFBundleName", "Moon"},
                                 {"CFBundleShortVersionString", "4.0"},
                                 {"CFBundleVersion", "300"},
                                 {"NSHumanReadableCopyright", "(c) us"}},
                                "/opt/moon"},
                               QString::fromStdString(directory / "Credits.html")};
};

TEST_F(AboutBox, FillsTheTemplateEachTimeAnew) {
    about.updateText();
    EXPECT_EQ(text(0), "Moon");
    EXPECT_EQ(text(1), "Version 4.0 (300)");
    EXPECT_EQ(text(2), "(c) us");
    EXPECT_EQ(text(3), "Café");
    EXPECT_TRUE(block(4).text().startsWith("App link"));
    EXPECT_TRUE(font(0).bold());
    EXPECT_FALSE(font(1).bold());
    EXPECT_EQ(font(3).families(), QStringList("Helvetica Neue"));
    const QVariant picture =
        about.textView()->document()->resource(QTextDocument::ImageResource, QUrl("/etc/hostname"));
    EXPECT_EQ(picture.value<QImage>().size(), QSize(1, 1));

    ZQAboutBoxController bare({{}, "/opt/moon"}, "/nowhere/Credits.html");
    bare.showWindow();
    EXPECT_EQ(bare.textView()->toPlainText(), "moon\nVersion (null) ((null))\n\n");
    EXPECT_EQ(applicationName(BundleInformation::mainBundle()), "Nocturo");
    EXPECT_EQ(versionText(BundleInformation::mainBundle()), NOCTURO_VERSION);
}

struct LinkRecorder : QObject {
    Q_OBJECT
  public:
    QStringList opened;
  public Q_SLOTS:
    void open(const QUrl& link) { opened << link.toString(); }
};

TEST_F(AboutBox, OpensWebLinksAloneOutside) {
    LinkRecorder recorder; // which unsets itself at its end
    for (const char* scheme : {"https", "file"}) {
        QDesktopServices::setUrlHandler(scheme, &recorder, "open");
    }
    for (const char* link : {"https://a/", "file:///etc/passwd", "other.html"}) {
        Q_EMIT about.textView()->anchorClicked(QUrl(link));
    }
    EXPECT_EQ(recorder.opened, QStringList("https://a/"));
    EXPECT_EQ(text(0), "Moon");
}

#include "about_box_test.moc"
