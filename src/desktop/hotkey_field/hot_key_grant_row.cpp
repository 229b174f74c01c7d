#include "desktop/hotkey_field/hot_key_grant_row.h"

#include "desktop/qt/localized.h"
#include "hotkeys/hot_key_center.h"
#include "hotkeys/hot_key_words.h"
#include "hotkeys/saved_hot_key.h"
#include "settings/defaults_store.h"
#include "settings/settings_keys.h"

#include <QClipboard>
#include <QGridLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <optional>

namespace nocturo {

namespace {

std::optional<HotKeyGrant> currentGrant(const DefaultsStore& defaults) {
    const auto saved = NDSavedHotKey(defaults);
    return saved != nullptr ? HXHotKeyCenter::sharedHotKeyCenter().grantWithKeyCode(
                                  saved->keyCode(), saved->modifierFlags())
                            : std::nullopt;
}

/// Where a hot key is claimed and not granted somebody else has it.
QString whoHolds(const DefaultsStore& defaults, KeyboardLayout* layout) {
    const auto saved = NDSavedHotKey(defaults);
    if (saved == nullptr || !defaults.boolForKey(kUseHotKey) ||
        HXHotKeyCenter::sharedHotKeyCenter().hasRegisteredHotKeyWithKeyCode(
            saved->keyCode(), saved->modifierFlags())) {
        return {};
    }
    return filled(
        localized("%@ is held by another program. Choose another hot key."),
        {QString::fromStdString(hotKeyWords(saved->keyCode(), saved->modifierFlags(), layout))});
}

QString buttonText(const HotKeyGrant& grant) {
    if (!grant.configuration.empty()) {
        return localized("Copy");
    }
    if (grant.canBeChanged) {
        return localized("Change...");
    }
    const bool canBeAsked =
        grant.state == HotKeyGrant::State::notAsked || grant.state == HotKeyGrant::State::refused;
    return canBeAsked ? localized("Ask") : QString();
}

} // namespace

HotKeyGrantRow::HotKeyGrantRow(QWidget* parent)
    : QWidget(parent), sentence_(new QLabel(this)), configuration_(new QLineEdit(this)),
      button_(new QPushButton(this)) {
    sentence_->setTextFormat(Qt::PlainText);
    sentence_->setWordWrap(true);
    configuration_->setReadOnly(true);
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins({});
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    layout->setColumnStretch(0, 1);
    layout->addWidget(sentence_, 0, 0);
    layout->addWidget(configuration_, 1, 0);
    layout->addWidget(button_, 1, 1);
    connect(button_, &QPushButton::clicked, this, &HotKeyGrantRow::wasPressed);
    hide();
}

void HotKeyGrantRow::update(const DefaultsStore& defaults, KeyboardLayout* layout) {
    const HotKeyGrant grant = currentGrant(defaults).value_or(HotKeyGrant());
    QString sentence = QString::fromStdString(sentenceOn(grant));
    if (sentence.isEmpty()) {
        sentence = whoHolds(defaults, layout);
    }
    const QString button = buttonText(grant);
    const QString configuration = QString::fromStdString(grant.configuration);
    sentence_->setText(sentence);
    if (configuration_->text() != configuration) {
        configuration_->setText(configuration);
        configuration_->setCursorPosition(0);
    }
    configuration_->setAccessibleName(sentence);
    configuration_->setVisible(!configuration.isEmpty());
    // Beside the sentence, where no line needs the place below it.
    auto* grid = qobject_cast<QGridLayout*>(this->layout());
    grid->addWidget(button_, configuration.isEmpty() ? 0 : 1, 1);
    button_->setText(button);
    button_->setVisible(!button.isEmpty());
    setVisible(!sentence.isEmpty() || !button.isEmpty());
}

void HotKeyGrantRow::wasPressed() {
    if (configuration_->isHidden()) {
        HXHotKeyCenter::sharedHotKeyCenter().askDesktopAgain();
    } else {
        QGuiApplication::clipboard()->setText(configuration_->text());
    }
}

} // namespace nocturo
