// The main menu, the documents that it remembers and the status item's images, drawn into memory.

#include "app/menus/main_menu.h"
#include "app/menus/status_image.h"
#include "app/recent_documents.h"
#include "temporary_directory.h"

#include <QApplication>
#include <QImage>
#include <QPainter>

#include <gmock/gmock.h>

#include <fstream>

namespace nocturo {

namespace {

using testing::ElementsAre;

class RecentlyOpened : public testing::Test {
  protected:
    std::string document(const std::string& name) {
        const auto path = directory_.path() / name;
        std::ofstream(path) << "anything";
        return path;
    }

    TemporaryDirectory directory_;
    RecentDocuments documents_{directory_.path() / "state" / "recent.plist"};
};

TEST_F(RecentlyOpened, TheLatestComesFirstAndWhatIsGoneIsLeftOut) {
    EXPECT_TRUE(documents_.paths().empty());
    const std::string a = document("a");
    const std::string b = document("b");
    for (const std::string& path : {a, b, a}) {
        documents_.note(path);
    }
    EXPECT_THAT(documents_.paths(), ElementsAre(a, b));
    std::filesystem::remove(a);
    EXPECT_THAT(documents_.paths(), ElementsAre(b));
    for (int i = 0; i < 12; ++i) {
        documents_.note(document(std::to_string(i)));
    }
    EXPECT_EQ(documents_.paths().size(), 10U);
    EXPECT_EQ(documents_.paths()[0], (directory_.path() / "11").string());
    std::ofstream(directory_.path() / "state" / "recent.plist") << "damaged";
    EXPECT_TRUE(documents_.paths().empty());
}

TEST_F(RecentlyOpened, EveryItemOfTheMainMenuCanBeTyped) {
    const MainMenu menu(documents_, {});
    const auto items = menu.bar()->findChildren<QAction*>();
    EXPECT_GE(items.size(), 10);
    for (const QAction* item : items) {
        EXPECT_TRUE(item->isSeparator() || item->text().contains(u'&'))
            << item->text().toStdString();
    }
}

TEST_F(RecentlyOpened, TheMenuOffersAndForgetsThem) {
    QString opened;
    MainMenu::Handlers handlers;
    handlers.openRecentDocument = [&](const QString& path) { opened = path; };
    const MainMenu menu(documents_, handlers);
    QMenu* recent = nullptr;
    for (QMenu* each : menu.bar()->findChildren<QMenu*>()) {
        if (each->title().contains(QStringLiteral("Recent"))) {
            recent = each;
        }
    }
    ASSERT_NE(recent, nullptr);
    const std::string path = document("R&D.nocturo");
    documents_.note(path);
    Q_EMIT recent->aboutToShow();
    ASSERT_EQ(recent->actions().size(), 3); // the document, a separator, Clear Menu
    EXPECT_EQ(recent->actions()[0]->text(), QStringLiteral("R&&D.nocturo"));
    recent->actions()[0]->trigger();
    EXPECT_EQ(opened.toStdString(), path);
    recent->actions()[2]->trigger();
    EXPECT_TRUE(documents_.paths().empty());
    Q_EMIT recent->aboutToShow();
    EXPECT_FALSE(recent->actions().last()->isEnabled());
}

TEST(StatusImages, AreTheirNamesInThePanelsColor) {
    EXPECT_TRUE(statusImage(QStringLiteral("NDOther"), Qt::black).isNull());
    for (const int side : {16, 22, 48}) {
        const auto inked = [&](const char* name) {
            const QImage image = statusImage(QLatin1String(name), Qt::red)
                                     .pixmap(side)
                                     .toImage()
                                     .convertToFormat(QImage::Format_ARGB32);
            int count = 0;
            for (int y = 0; y < side; ++y) {
                for (int x = 0; x < side; ++x) {
                    const QColor color = image.pixelColor(x, y);
                    EXPECT_TRUE(color.alpha() == 0 || color.rgb() == QColor(Qt::red).rgb());
                    count += color.alpha() > 127 ? 1 : 0;
                }
            }
            return static_cast<double>(count) / (side * side);
        };
        EXPECT_NEAR(inked(kStatusTemplate), 0.5, 0.08) << side;
        EXPECT_GT(inked(kStatusActiveTemplate), inked(kStatusTemplate) + 0.15) << side;
    }
}

/// The part of the pixels of two gray images that are clearly told apart.
double difference(const QImage& one, const QImage& other) {
    int count = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            count += std::abs(qGray(one.pixel(x, y)) - qGray(other.pixel(x, y))) > 64 ? 1 : 0;
        }
    }
    return static_cast<double>(count) / (one.width() * one.height());
}

TEST(StatusImages, AreSeenOnPanelsOfUnknownColor) {
    for (const int side : {16, 22, 24, 48}) {
        for (const int shade : {0, 0x36, 0x80, 0xff}) {
            QImage ground(side, side, QImage::Format_Grayscale8);
            ground.fill(QColor(shade, shade, shade));
            const auto drawn = [&](const char* name) {
                QImage image = ground;
                QPainter painter(&image);
                statusImage(QLatin1String(name), std::nullopt).paint(&painter, image.rect());
                return image;
            };
            const QImage off = drawn(kStatusTemplate);
            const QImage on = drawn(kStatusActiveTemplate);
            EXPECT_GT(difference(off, ground), 0.15) << side << " on " << shade;
            EXPECT_GT(difference(on, ground), 0.15) << side << " on " << shade;
            EXPECT_GT(difference(on, off), 0.15) << side << " on " << shade;
        }
    }
}

} // namespace

} // namespace nocturo
