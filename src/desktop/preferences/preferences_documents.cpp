// Effect documents: from the controls into a file, and from a file into the controls.

#include "desktop/preferences/preference_panel.h"
#include "desktop/preferences/preferences_controller.h"
#include "desktop/preferences/sheet.h"
#include "desktop/qt/localized.h"
#include "documents/effect_document.h"
#include "documents/effect_document_file.h"
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

/// Asks for a document of ours and for nothing else: what is to be saved gets the extension,
/// whatever other one was typed. Qt's own questions would hold the program up until they are
/// answered, so they are asked here.
class FilePanel : public QFileDialog {
  public:
    using QFileDialog::QFileDialog;

    void accept() override {
        const QFileInfo chosen(selectedFiles().value(0));
        if (chosen.isDir()) {
            QFileDialog::accept(); // goes there
        } else if (acceptMode() == AcceptOpen) {
            acceptToOpen(chosen);
        } else {
            acceptToSave(chosen.filePath());
        }
    }

  private:
    void acceptToOpen(const QFileInfo& chosen) {
        if (chosen.isFile()) {
            QFileDialog::accept();
        } else {
            showAlert(*this, localized("Opening failed"), notADocument(chosen.filePath()));
        }
    }

    void acceptToSave(QString path) {
        if (!path.endsWith(documentSuffix())) {
            path += documentSuffix();
        }
        // selectFile() would leave a field alone that has the focus.
        findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(path);
        const QFileInfo chosen(path);
        if (!chosen.exists()) {
            QFileDialog::accept();
            return;
        }
        QMessageBox* question = newSheet(
            this, QMessageBox::Warning,
            tr("%1 already exists.\nDo you want to replace it?").arg(chosen.fileName()), {});
        question->setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        question->setDefaultButton(QMessageBox::No);
        connect(question, &QDialog::finished, this, [this](int answer) {
            if (answer == QMessageBox::Yes) {
                QFileDialog::accept();
            }
        });
        showSheet(*question);
    }
};

// The desktop's own dialogs have no room for a box of ours, so Qt's are used.
QFileDialog* filePanel(QWidget* window, const QString& folder, const QString& title) {
    auto* panel = new FilePanel(window, title, folder);
    panel->setOption(QFileDialog::DontUseNativeDialog);
    panel->setOption(QFileDialog::DontConfirmOverwrite); // done already
    panel->setAttribute(Qt::WA_DeleteOnClose);
    panel->setWindowModality(Qt::WindowModal);
    panel->setNameFilter(localized("Nocturo effects") + QStringLiteral(" (*") + documentSuffix() +
                         QStringLiteral(")"));
    return panel;
}

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
    QFileDialog* panel = filePanel(panel_.get(), documentFolder(), localized("Save Effect"));
    panel->setAcceptMode(QFileDialog::AcceptSave);
    auto* hideExtension = new QCheckBox(localized("&Hide extension"), panel);
    if (auto* layout = qobject_cast<QGridLayout*>(panel->layout())) {
        layout->addWidget(hideExtension, layout->rowCount(), 1);
    }
    connect(panel, &QDialog::finished, this, [this, panel, hideExtension](int returnCode) {
        savePanelDidEnd(*panel, returnCode, hideExtension->isChecked());
    });
    panel->show();
}

void NDPreferencesController::savePanelDidEnd(const QFileDialog& panel, int returnCode,
                                              bool hideExtension) {
    if (returnCode != QDialog::Accepted) {
        return;
    }
    const QString path = panel.selectedFiles().value(0);
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

bool NDPreferencesController::writeEffectFile(const QString& path) const {
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
    QFileDialog* panel = filePanel(panel_.get(), documentFolder(), localized("Open Effect"));
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
