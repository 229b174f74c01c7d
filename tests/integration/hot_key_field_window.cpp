// A window with a hot key field among things that want keys themselves. It says on standard output
// what happens to them, one line each, beginning with "ready" and where the field is.

#include "hotkeys/field/hot_key_text_field.h"
#include "platform/keyboard/xkb/xkb_keyboard_layout.h"

#include <QAction>
#include <QApplication>
#include <QMenuBar>
#include <QPushButton>
#include <QVBoxLayout>
#include <QWindow>

#include <iostream>

namespace {

void say(const std::string& line) {
    std::cout << line << std::endl;
}

} // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    const auto layout =
        nocturo::XkbKeyboardLayout::open(qEnvironmentVariable("DISPLAY").toStdString());

    QWidget window;
    auto* box = new QVBoxLayout(&window);
    auto* menu = new QMenuBar;
    auto* save = menu->addMenu("&Screen")->addAction("Save");
    save->setShortcut(QKeySequence("Ctrl+Meta+K"));
    QObject::connect(save, &QAction::triggered, [] { say("shortcut"); });
    auto* button = new QPushButton("&Kept");
    QObject::connect(button, &QPushButton::pressed, [] { say("button"); });
    auto* field = new nocturo::HXHotKeyTextField;
    field->setKeyboardLayout(layout.get());
    auto* name = new QLineEdit;
    for (QWidget* widget : std::initializer_list<QWidget*>{menu, button, field, name}) {
        box->addWidget(widget);
    }

    using Field = nocturo::HXHotKeyTextField;
    QObject::connect(field, &Field::recordingStarted, [] { say("started"); });
    QObject::connect(field, &Field::recordingEnded, [] { say("ended"); });
    QObject::connect(field, &Field::hotKeyEdited, [field] {
        const auto hotKey = field->hotKey();
        say(hotKey ? "edited " + std::to_string(hotKey->keyCode()) + " " +
                         std::to_string(hotKey->modifierFlags()) + " " + field->text().toStdString()
                   : "edited nothing");
    });
    QObject::connect(name, &QLineEdit::textEdited,
                     [](const QString& text) { say("name " + text.toStdString()); });

    window.show();
    window.activateWindow(); // the test's server has no window manager to do it
    QObject::connect(&application, &QGuiApplication::focusWindowChanged, [&](QWindow* focus) {
        if (focus == nullptr) {
            return;
        }
        name->setFocus();
        const QPoint place = field->mapToGlobal(field->rect().center());
        say("ready " + std::to_string(place.x()) + " " + std::to_string(place.y()));
    });
    return QApplication::exec();
}
