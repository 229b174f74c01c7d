// Effect documents: from the controls into a file, and from a file into the controls.

#include "desktop/preferences/preference_panel.h"
#include "desktop/preferences/preferences_controller.h"
#include "desktop/preferences/sheet.h"
#include "desktop/qt/localized.h"
#include "documents/chosen_look.h"
#include "documents/effect_document.h"
#include "documents/effect_document_file.h"
#include "documents/looks.h"
#include "settings/defaults_store.h"
#include "ui_NocturoPreferencePanel.h"

#include <QCheckBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>

#include <functional>

namespace nocturo {

namespace {

QString documentSuffix() {
    return QStringLiteral(".") + QLatin1String(kEffectDocumentExtension);
}

void showAlert(QWidget& window, const QString& title, const QString& message) {
    QMessageBox* alert = newSheet(&window, QMessageBox::Warning, title, message);
    alert->setDefaultButton(alert->addButton(localized("OK"), QMessageBox::AcceptRole));
    showSheet(*alert);
}

QString notADocument(const QString& path) {
    return filled(localized("“%@” is not an effect document."),
                  {QString::fromStdString(documentDisplayName(path.toStdString()))});
}

QString withSuffix(const QString& path) {
    return path.endsWith(documentSuffix()) ? path : path + documentSuffix();
}

/// Asks before a file that is there is replaced.
void replaceIfWanted(QWidget& window, const QString& path, const std::function<void()>& replace) {
    const QFileInfo chosen(path);
    if (!chosen.exists()) {
        replace();
        return;
    }
    QMessageBox* question = newSheet(
        &window, QMessageBox::Warning,
        QFileDialog::tr("%1 already exists.\nDo you want to replace it?").arg(chosen.fileName()),
        {});
    question->setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    question->setDefaultButton(QMessageBox::No);
    QObject::connect(question, &QDialog::finished, &window, [replace](int answer) {
        if (answer == QMessageBox::Yes) {
            replace();
        }
    });
    showSheet(*question);
}

/// Asks for a document of ours: the desktop's own dialog where its Qt has one, or else Qt's, whose
/// questions would hold the program up until they are answered, so they are asked here.
class FilePanel : public QFileDialog {
  public:
    FilePanel(QWidget* window, const QString& title, const QString& folder)
        : QFileDialog(window, title, folder) {
        setAttribute(Qt::WA_DeleteOnClose);
        setWindowModality(Qt::WindowModal);
        setNameFilter(localized("Nocturo effects") + QStringLiteral(" (*") + documentSuffix() +
                      QStringLiteral(")"));
    }

    void accept() override {
        // Null in a dialog of the desktop, which has asked by itself.
        auto* field = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        const QFileInfo chosen(selectedFiles().value(0));
        const bool goesThere = chosen.isDir();
        if (field != nullptr && !goesThere && acceptMode() == AcceptSave) {
            acceptToSave(*field, withSuffix(chosen.filePath()));
        } else if (field != nullptr && !goesThere && !chosen.isFile()) {
            showAlert(*this, localized("Opening failed"), notADocument(chosen.filePath()));
        } else {
            QFileDialog::accept();
        }
    }

  private:
    void acceptToSave(QLineEdit& field, const QString& path) {
        field.setText(path); // selectFile() would leave one alone that has the focus
        setOption(DontConfirmOverwrite);
        replaceIfWanted(*this, path, [this] { QFileDialog::accept(); });
    }
};

} // namespace

void NDPreferencesController::connectDocuments() {
    connect(ui_->openButton, &QAbstractButton::clicked, this,
            &NDPreferencesController::restoreEffect);
    connect(ui_->saveButton, &QAbstractButton::clicked, this, &NDPreferencesController::saveEffect);
    connect(panel_.get(), &PreferencePanel::documentDropped, this,
            &NDPreferencesController::documentWasDropped);
    // Of the window: a button's own would take its mnemonic's place.
    connect(new QShortcut(QKeySequence::Open, panel_.get()), &QShortcut::activated, this,
            &NDPreferencesController::restoreEffect);
    connect(new QShortcut(QKeySequence::Save, panel_.get()), &QShortcut::activated, this,
            &NDPreferencesController::saveEffect);
}

QString NDPreferencesController::documentFolder() const {
    const QString path = surroundings_.documentFolder
                             ? QString::fromStdString(surroundings_.documentFolder())
                             : QString();
    return QFileInfo(path).isDir() ? path : QDir::homePath();
}

void NDPreferencesController::saveEffect() {
    auto* panel = new FilePanel(panel_.get(), localized("Save Effect"), documentFolder());
    panel->setAcceptMode(QFileDialog::AcceptSave);
    panel->selectFile(withSuffix(suggestedName()));
    // The desktop's own dialogs have no room for it.
    QCheckBox* hideExtension = nullptr;
    if (auto* layout = qobject_cast<QGridLayout*>(panel->layout())) {
        hideExtension = new QCheckBox(localized("&Hide extension"), panel);
        layout->addWidget(hideExtension, layout->rowCount(), 1);
    }
    connect(panel, &QDialog::finished, this, [this, panel, hideExtension](int returnCode) {
        savePanelDidEnd(*panel, returnCode, hideExtension != nullptr && hideExtension->isChecked());
    });
    panel->show();
}

/// The look's that is in force, or else what the effects are called.
QString NDPreferencesController::suggestedName() const {
    const Look* look = surroundings_.looks != nullptr ? surroundings_.looks->inForce() : nullptr;
    QStringList names;
    for (const QCheckBox* box : {ui_->invertScreen, ui_->hideStripes, ui_->hdtvLuminance,
                                 ui_->colorFilter, ui_->dimScreen}) {
        if (box->isChecked()) {
            names.append(QString(box->text()).remove(QLatin1Char('&')));
        }
    }
    QString name =
        look != nullptr ? QString::fromStdString(look->title) : names.join(QStringLiteral(", "));
    return name.isEmpty() ? QStringLiteral("Nocturo") : name.replace(u'/', u'-');
}

void NDPreferencesController::savePanelDidEnd(const QFileDialog& panel, int returnCode,
                                              bool hideExtension) {
    if (returnCode != QDialog::Accepted) {
        return;
    }
    const QString chosen = panel.selectedFiles().value(0);
    const QString path = withSuffix(chosen);
    const auto save = [this, path, hideExtension] { saveEffectAt(path, hideExtension); };
    if (path == chosen) {
        save(); // it was asked about
    } else {
        replaceIfWanted(*panel_, path, save);
    }
}

void NDPreferencesController::saveEffectAt(const QString& path, bool hideExtension) {
    // A document that could not be replaced is still there as it was, and that is all there is to
    // it.
    if (!writeEffectFile(path) && !QFileInfo::exists(path)) {
        showAlert(*panel_, localized("Saving failed"),
                  localized("Could not save settings at this location."));
        return;
    }
    Q_EMIT documentWasUsed(path);
    if (hideExtension) {
        setExtensionHidden(path.toStdString(), true);
    }
}

Result<void> NDPreferencesController::writeEffectFile(const QString& path) const {
    EffectDocument document;
    document.invertScreen = ui_->invertScreen->isChecked();
    document.overexposure = ui_->hideStripes->isChecked();
    document.hdtvLuminance = ui_->hdtvLuminance->isChecked();
    document.colorFilter = ui_->colorFilter->isChecked();
    document.colorFilterHue = ui_->colorFilterHue->value();
    document.colorFilterVividness = ui_->colorFilterVividness->value();
    document.dim = ui_->dimScreen->isChecked();
    document.dimLevel = ui_->dimLevel->value();
    return writeEffectDocument(path.toStdString(), document);
}

void NDPreferencesController::restoreEffect() {
    auto* panel = new FilePanel(panel_.get(), localized("Open Effect"), documentFolder());
    panel->setFileMode(QFileDialog::ExistingFile);
    connect(panel, &QDialog::finished, this,
            [this, panel](int returnCode) { openPanelDidEnd(*panel, returnCode); });
    panel->show();
}

void NDPreferencesController::openPanelDidEnd(const QFileDialog& panel, int returnCode) {
    if (returnCode != QDialog::Accepted) {
        return;
    }
    openEffectFile(panel.selectedFiles().value(0));
}

void NDPreferencesController::documentWasDropped(const QString& path) {
    if (!openEffectFile(path)) {
        showAlert(*panel_, localized("Opening failed"), notADocument(path));
    }
}

bool NDPreferencesController::openEffectFile(const QString& path) {
    const auto document = readEffectDocument(path.toStdString());
    if (!document) {
        return false;
    }
    if (!isWindowLoaded()) {
        return true;
    }
    Q_EMIT documentWasUsed(path);
    using Self = NDPreferencesController;
    const DefaultsStore::Batch oneChange(surroundings_.defaults);
    const auto check = [this](QCheckBox* box, bool checked,
                              void (Self::*action)(const QAbstractButton&)) {
        box->setChecked(checked);
        (this->*action)(*box);
    };
    const auto slide = [this](ParameterSlider* slider, float value,
                              void (Self::*action)(const ParameterSlider&)) {
        slider->setValue(value);
        (this->*action)(*slider);
    };
    check(ui_->invertScreen, document->invertScreen, &Self::changeInvert);
    check(ui_->hideStripes, document->overexposure, &Self::changeHideStripes);
    check(ui_->hdtvLuminance, document->hdtvLuminance, &Self::changeHDTVLuminance);
    check(ui_->colorFilter, document->colorFilter, &Self::changeColorFilter);
    slide(ui_->colorFilterHue, document->colorFilterHue, &Self::changeColorFilterHue);
    slide(ui_->colorFilterVividness, document->colorFilterVividness,
          &Self::changeColorFilterVividness);
    check(ui_->dimScreen, document->dim, &Self::changeDim);
    slide(ui_->dimLevel, document->dimLevel, &Self::changeDimLevel);
    return true;
}

} // namespace nocturo
