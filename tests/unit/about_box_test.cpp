#include "about/about_box_controller.h"
#include "about/about_box_views.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDesktopServices>
#include <QDialog>
#include <QFontDatabase>
#include <QScreen>
#include <QScrollBar>
#include <QTemporaryFile>
#include <QTest>
#include <QTextBlock>
#include <QTextFrame>

#include <optional>
#include <utility>

namespace nocturo {
namespace {

BundleInformation bundle(PropertyDictionary values) {
    return {std::move(values), "/opt/moon"};
}

/// Counts how often a widget is painted.
struct PaintCounter : QObject {
    bool eventFilter(QObject*, QEvent* event) override {
        paints += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
    int paints = 0;
};

class AboutBox : public testing::Test {
  protected:
    AboutBox() {
        EXPECT_TRUE(credits.open());
        QByteArray html =
            "<meta charset='iso-8859-1'><p style='font-family:Lucida Grande'>Caf\xe9</p>"
            "<p style='font-family:Lucida Grande'>App <a href='https://a/'>link</a>"
            "<a href='other.html'>local</a><img src='/etc/hostname'></p>";
        for (int line = 0; line < 60; ++line) {
            html += "<p>more</p>";
        }
        credits.write(html);
        credits.close();
    }
    void show(const char* shortVersion = "4.0") {
        about.emplace(bundle({{"CFBundleName", std::string("Moon")},
                              {"CFBundleShortVersionString", std::string(shortVersion)},
                              {"CFBundleVersion", std::string("300")},
                              {"NSHumanReadableCopyright", std::string("(c) us")}}),
                      credits.fileName());
        about->showWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(about->window()));
    }
    QTextBlock block(int number) const {
        return about->textView()->document()->findBlockByNumber(number);
    }
    QFont font(int number) const { return block(number).begin().fragment().charFormat().font(); }
    QColor corner(int y) const { return about->window()->grab().toImage().pixelColor(2, y); }

    QTemporaryFile credits;
    std::optional<ZQAboutBoxController> about;
};

TEST(BundleTexts, NameAndVersion) {
    EXPECT_EQ(applicationName(bundle({{"CFBundleName", std::int64_t{1}}})), "moon");
    for (const auto& [values, text] :
         {std::pair(PropertyDictionary{{"CFBundleShortVersionString", std::string("4.0")},
                                       {"CFBundleVersion", std::string("4.0")}},
                    "4.0"),
          std::pair(PropertyDictionary{{"CFBundleShortVersionString", 4.5},
                                       {"CFBundleVersion", std::string("300")}},
                    "4.5 (300)"),
          std::pair(PropertyDictionary{{"CFBundleVersion", std::string("300")}}, "(null) (300)")}) {
        EXPECT_EQ(versionText(bundle(values)), text);
    }
    EXPECT_EQ(applicationName(BundleInformation::mainBundle()), "Nocturo");
    EXPECT_EQ(versionText(BundleInformation::mainBundle()), NOCTURO_VERSION);
    EXPECT_FALSE(applicationIcon().pixmap(48).isNull());
}

TEST_F(AboutBox, FillsTheTemplateEachTimeAnew) {
    show();
    about->updateText();
    EXPECT_EQ(block(0).text(), "Moon");
    EXPECT_EQ(block(1).text(), "Version 4.0 (300)");
    EXPECT_EQ(block(2).text(), "(c) us");
    EXPECT_EQ(block(3).text(), QString::fromUtf8("Café"));
    EXPECT_TRUE(block(4).text().startsWith("App linklocal"));
    const QFont system = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    EXPECT_EQ(font(0).family(), system.family());
    EXPECT_TRUE(font(0).bold());
    EXPECT_EQ(font(0).pointSizeF(), 24);
    EXPECT_FALSE(font(1).bold());
    EXPECT_EQ(font(1).pointSizeF(), 11);
    EXPECT_EQ(font(3).families(), QStringList("Helvetica Neue"));
    EXPECT_EQ(font(4).families(), QStringList("Lucida Grande"));
    EXPECT_EQ(about->textView()
                  ->document()
                  ->resource(QTextDocument::ImageResource, QUrl("/etc/hostname"))
                  .value<QImage>()
                  .size(),
              QSize(1, 1));

    ZQAboutBoxController bare(bundle({}), "/nowhere/Credits.html");
    bare.showWindow();
    EXPECT_EQ(bare.textView()->toPlainText(), "moon\nVersion (null) ((null))\n\n");
}

TEST_F(AboutBox, KeepsItsPlaceWhileItIsVisible) {
    show();
    const QScrollBar& bar = *about->textView()->verticalScrollBar();
    QTest::keyClick(about->textView(), Qt::Key_PageDown);
    const int place = bar.value();
    EXPECT_GT(place, 0);
    about->window()->move(3, 4);
    about->showWindow();
    QEvent restyled(QEvent::StyleChange);
    QApplication::sendEvent(about->textView(), &restyled);
    EXPECT_EQ(bar.value(), place);
    EXPECT_EQ(about->window()->pos(), QPoint(3, 4));

    QTest::keyClick(about->textView(), Qt::Key_Escape);
    EXPECT_FALSE(about->window()->isVisible());
    about->showWindow();
    EXPECT_EQ(bar.value(), 0);
    const QPoint off = about->window()->frameGeometry().center() -
                       about->window()->screen()->availableGeometry().center();
    EXPECT_LE(off.manhattanLength(), 2);
    ASSERT_TRUE(QTest::qWaitForWindowActive(about->window()));
    QTest::keyClick(about->textView(), Qt::Key_W, Qt::ControlModifier);
    EXPECT_FALSE(about->window()->isVisible());
}

TEST_F(AboutBox, TextReachesTheEdgesButStaysInPlace) {
    show();
    const QRect frame = about->textView()->geometry(); // 168, 28, 324 x 256 in a box of 520 x 312
    EXPECT_EQ(frame, QRect(140, 0, 380, 312));
    const auto margins = about->textView()->document()->rootFrame()->frameFormat();
    EXPECT_EQ(margins.leftMargin(), 28 + 4);
    EXPECT_EQ(margins.topMargin(), 28 + 4);
}

TEST_F(AboutBox, BackgroundFollowsActivation) {
    EXPECT_EQ(ZQAboutBoxBackgroundColor(), QColor::fromRgbF(0.9F, 0.9F, 0.9F));
    ZQSetAboutBoxBackgroundColor(QColor(200, 100, 50));
    show();
    EXPECT_GT(corner(1).blue(), 250);
    EXPECT_LT(corner(310).blue(), 55);
    // What shows between the pieces of the window is painted anew by nobody else.
    auto* background = about->window()->findChild<QWidget*>("background");
    about->textView()->hide();
    PaintCounter counter;
    QWidget other;
    QCoreApplication::processEvents();
    background->installEventFilter(&counter);
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    EXPECT_TRUE(QTest::qWaitFor([&] { return counter.paints > 0; }));
    EXPECT_NEAR(corner(1).blue(), 152, 1); // half-way from 50 to 255
    EXPECT_NEAR(corner(310).red(), 227, 1);
    ZQSetAboutBoxBackgroundColor(QColor::fromRgbF(0.9F, 0.9F, 0.9F));
}

TEST_F(AboutBox, IsDraggedByItsIcon) {
    show();
    const QPoint before = about->window()->pos();
    QTest::mousePress(about->iconView(), Qt::LeftButton, {}, QPoint(10, 10));
    QTest::mouseMove(about->iconView(), QPoint(30, 15));
    QTest::mouseRelease(about->iconView(), Qt::LeftButton, {}, QPoint(10, 10));
    EXPECT_EQ(about->window()->pos() - before, QPoint(20, 5));
}

struct LinkRecorder : QObject {
    Q_OBJECT
  public:
    QStringList opened;
  public Q_SLOTS:
    void open(const QUrl& link) { opened << link.toString(); }
};

TEST_F(AboutBox, OpensWebLinksAloneOutside) {
    show();
    LinkRecorder recorder;
    for (const char* scheme : {"https", "file"}) {
        QDesktopServices::setUrlHandler(scheme, &recorder, "open");
    }
    for (const char* link : {"https://a/", "file:///etc/passwd", "other.html"}) {
        Q_EMIT about->textView()->anchorClicked(QUrl(link));
    }
    EXPECT_EQ(recorder.opened, QStringList("https://a/"));
    EXPECT_EQ(block(0).text(), "Moon");
    for (const char* scheme : {"https", "file"}) {
        QDesktopServices::unsetUrlHandler(scheme);
    }
}

} // namespace
} // namespace nocturo

#include "about_box_test.moc"
