#include "desktop/desktop_library.h"

#include "base/event_loop.h"
#include "desktop/app_windows.h"
#include "desktop/menus/desktop_menus.h"
#include "desktop/qt/dark_palette.h"
#include "desktop/qt/qt_loop.h"
#include "desktop/qt/translations.h"
#include "desktop/test_card/test_card.h"

#include <QApplication>
#include <QLoggingCategory>
#include <QSessionManager>
#include <QThread>

#include <chrono>
#include <cstdlib>
#include <semaphore>
#include <utility>

namespace nocturo {

namespace {

char programName[] = "nocturo";
char* arguments[] = {programName, nullptr};
int argumentCount = 1;

/// Qt ends the process by itself when the X server goes, if it notices before the displays do. What
/// is to be done then; nothing once the part has gone.
std::function<void()>& atSuddenEnd() {
    static std::function<void()> action;
    return action;
}

void endSuddenly() {
    if (const auto action = std::exchange(atSuddenEnd(), nullptr)) {
        action();
    }
}

QtMessageHandler printMessage = nullptr;
std::binary_semaphore hasEnded(0);

/// Where a Wayland compositor goes, Qt ends the process past all that exit() does. This is its last
/// word before, of its own thread and of the main one. Only that one may touch anything; the other
/// gives it the time.
void noteMessage(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    printMessage(type, context, message);
    if (!message.contains(QLatin1String("Wayland connection"))) {
        return;
    }
    if (QThread::currentThread() == QCoreApplication::instance()->thread()) {
        endSuddenly();
        hasEnded.release();
    } else {
        static_cast<void>(hasEnded.try_acquire_for(std::chrono::seconds(1)));
    }
}

/// Qt's application, in whose loop the core's runs.
class Application {
  public:
    explicit Application(EventLoop& loop) : qtLoop_(loop) {
        // Profiles are checked by the core, with a sentence that names them.
        QLoggingCategory::setFilterRules(QStringLiteral("qt.gui.icc=false"));
        installTranslations(application_);
        QApplication::setApplicationName(QStringLiteral("Nocturo"));
        QApplication::setDesktopFileName(QStringLiteral("org.nocturo.Nocturo"));
        QApplication::setQuitOnLastWindowClosed(false);
    }

  private:
    QApplication application_{argumentCount, arguments};
    QtLoop qtLoop_;
};

class QtDesktop : public DesktopPart {
  public:
    explicit QtDesktop(const DesktopSurroundings& around)
        : application_(around.loop),
          windows_(around.controller, around.defaults, around.centers, around.looks, around.guide),
          menus_(around.controller, windows_, around.recentDocuments, around.menus, around.server) {
        windows_.placeFile = around.stateDirectory / "window.ini";
        windows_.autostart = &around.autostart;
        atSuddenEnd() = around.serverIsLost;
        std::atexit(endSuddenly);
        printMessage = qInstallMessageHandler(noteMessage);
        // The desktop starts Nocturo by its autostart entry; a second start would be a toggle.
        const auto startNothing = [](QSessionManager& session) {
            session.setRestartHint(QSessionManager::RestartNever);
        };
        QObject::connect(qApp, &QGuiApplication::saveStateRequest, qApp, startNothing);
        QObject::connect(qApp, &QGuiApplication::commitDataRequest, qApp,
                         [startNothing, keep = around.sessionIsEnding](QSessionManager& session) {
                             startNothing(session);
                             keep();
                         });
    }

    ~QtDesktop() override {
        atSuddenEnd() = nullptr;
        qInstallMessageHandler(nullptr);
    }
    QtDesktop(const QtDesktop&) = delete;
    QtDesktop& operator=(const QtDesktop&) = delete;

    UserInterface& windows() override { return windows_; }
    void showAlert(const Alert& alert, std::function<void(AlertAnswer answer)> answered) override {
        menus_.showAlert(alert, std::move(answered));
    }
    void askToKeepColors(int secondsLeft, std::function<void(bool keep)> answered) override {
        menus_.askToKeepColors(secondsLeft, std::move(answered));
    }
    void withdrawKeepColors() override { menus_.withdrawKeepColors(); }
    void whenPointerIsReleased(std::function<void()> action) override {
        menus_.whenPointerIsReleased(std::move(action));
    }
    void showRefusedDocuments(const std::vector<std::string>& paths) override {
        menus_.showRefusedDocuments(paths);
    }
    void setInTray(bool inTray) override { menus_.setInTray(inTray); }
    void setItemEmbedded(bool embedded) override { menus_.setItemEmbedded(embedded); }
    void setItemImage(bool active) override { menus_.setItemImage(active); }
    void offerTray() override { windows_.offerTray(); }
    void preferDark(bool dark) override { nocturo::preferDark(dark); }
    void setItemToolTip(const std::string& sentence) override { menus_.setItemToolTip(sentence); }
    void popUpStatusMenu(int x, int y) override { menus_.popUpStatusMenu(x, y); }
    void setKeyboardLayout(KeyboardLayout* layout) override { windows_.setKeyboardLayout(layout); }

  private:
    Application application_;
    AppWindows windows_;
    DesktopMenus menus_;
};

} // namespace

} // namespace nocturo

const nocturo::DesktopLibrary* nocturoDesktopLibrary() {
    using namespace nocturo;
    static constexpr DesktopLibrary kLibrary = {
        NOCTURO_VERSION,
        [](const DesktopSurroundings& surroundings) -> std::unique_ptr<DesktopPart> {
            return std::make_unique<QtDesktop>(surroundings);
        },
        writeTestCard};
    return &kLibrary;
}
