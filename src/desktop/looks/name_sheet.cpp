#include "desktop/looks/name_sheet.h"

#include "desktop/qt/localized.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <utility>

namespace nocturo {

NameSheet::NameSheet(QWidget* window, const QString& title, const QString& name,
                     const QString& action,
                     std::function<Result<void>(const std::string& name)> take,
                     std::function<bool(const std::string& name)> isTaken)
    : QDialog(window), action_(action), take_(std::move(take)), isTaken_(std::move(isTaken)),
      name_(new QLineEdit(name, this)), problem_(new QLabel(this)) {
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowModality(Qt::WindowModal);
    setWindowTitle(title);
    auto* label = new QLabel(localized("Name:"), this);
    label->setBuddy(name_);
    name_->setMinimumWidth(fontMetrics().averageCharWidth() * 36);
    problem_->setTextFormat(Qt::PlainText);
    problem_->setWordWrap(true);
    problem_->hide();
    auto* buttons = new QDialogButtonBox(this);
    button_ = buttons->addButton(action, QDialogButtonBox::AcceptRole);
    buttons->addButton(localized("Cancel"), QDialogButtonBox::RejectRole);
    auto* layout = new QGridLayout(this);
    layout->addWidget(label, 0, 0);
    layout->addWidget(name_, 0, 1);
    layout->addWidget(problem_, 1, 1);
    layout->addWidget(buttons, 2, 0, 1, 2);
    connect(buttons, &QDialogButtonBox::accepted, this, &NameSheet::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(name_, &QLineEdit::textChanged, this, &NameSheet::nameDidChange);
    nameDidChange();
    name_->selectAll();
}

void NameSheet::nameDidChange() {
    isWarned_ = false;
    problem_->hide();
    button_->setText(action_);
    button_->setEnabled(!name_->text().trimmed().isEmpty());
}

void NameSheet::accept() {
    const QString text = name_->text().trimmed();
    const std::string name = text.toStdString();
    if (isTaken_ && !isWarned_ && isTaken_(name)) {
        isWarned_ = true;
        problem_->setText(filled(localized("There is a look \"%@\" already."), {text}));
        problem_->show();
        button_->setText(localized("Replace"));
        return;
    }
    if (const auto taken = take_(name); !taken) {
        problem_->setText(QString::fromStdString(taken.error().text));
        problem_->show();
        return;
    }
    QDialog::accept();
}

} // namespace nocturo
