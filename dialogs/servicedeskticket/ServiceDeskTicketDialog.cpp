#include "ServiceDeskTicketDialog.h"

#include "BrandingStrings.h"
#include "DisplayText.h"
#include "WheelGuard.h"
#include "ui_ServiceDeskTicketDialog.h"

#include <QKeyEvent>
#include <QMessageBox>
#include <QScopedValueRollback>

#include <utility>

namespace {
/// What a line edit allows when nobody limits it.
constexpr int longestSubject = 32767;

QString placeholder(int maxLength)
{
    if (maxLength <= 0)
        return ServiceDeskTicketDialog::tr("Required");
    //: Placeholder of an empty field that must be filled in
    return ServiceDeskTicketDialog::tr("Required (max. %1 chars)").arg(maxLength);
}

/// A style sheet gives its text colour to placeholders too, which makes them look like something typed.
void fadePlaceholder(QWidget* field)
{
    QPalette palette = field->palette();
    QColor color = palette.color(QPalette::Text);
    color.setAlphaF(0.6);
    palette.setColor(QPalette::PlaceholderText, color);
    field->setPalette(palette);
}
} // namespace

ServiceDeskTicketDialog::ServiceDeskTicketDialog(QWidget* parent)
    : BaseDialog(parent), ui(std::make_unique<Ui::ServiceDeskTicketDialog>())
{
    ui->setupUi(this);
    setupWindow();
    setCaption(ui->lblAppName, ui->lblType, tr("Submit ticket"));
    ui->bnSubmit->setEnabled(false);
    // The default, which also breaks long words, takes time by the square of their length: minutes for a pasted
    // megabyte.
    ui->txIssueDetails->setWordWrapMode(QTextOption::WordWrap);

    connect(ui->bnSubmit, &QPushButton::clicked, this, &ServiceDeskTicketDialog::slSubmit);
    connect(ui->bnCancel, &QPushButton::clicked, this, &ServiceDeskTicketDialog::slClose);
    connect(ui->btnClose, &QPushButton::clicked, this, &ServiceDeskTicketDialog::slClose);
    connect(this, &QDialog::accepted, this, [this] {
        // A host may answer a submission by accepting the dialog; that is not another one.
        if (!submitting)
            slSubmit();
    });
    connect(ui->edSubject, &QLineEdit::textChanged, this, &ServiceDeskTicketDialog::validate);
    connect(ui->txIssueDetails, &QTextEdit::textChanged, this, &ServiceDeskTicketDialog::slIssueDetailsTextChanged);
    connect(ui->cbDepartment, &QComboBox::currentTextChanged, this, &ServiceDeskTicketDialog::validate);
    connect(ui->cbPriorityLevel, &QComboBox::currentTextChanged, this, &ServiceDeskTicketDialog::validate);
    connect(ui->ckIncludeDeviceData, &QCheckBox::stateChanged, this, &ServiceDeskTicketDialog::validate);
    connect(ui->lbIncludeDeviceDataText, &QLabelEx::click, ui->ckIncludeDeviceData, [this] {
        if (QGuiApplication::mouseButtons() == Qt::LeftButton)
            ui->ckIncludeDeviceData->toggle();
    });
    new WheelGuard(ui->cbDepartment);
    new WheelGuard(ui->cbPriorityLevel);

    setWindowFlag(Qt::WindowStaysOnTopHint);
}

ServiceDeskTicketDialog::~ServiceDeskTicketDialog() = default;

void ServiceDeskTicketDialog::done(int result)
{
    if (result != Accepted || updateSubmitButton())
        BaseDialog::done(result);
}

void ServiceDeskTicketDialog::reject()
{
    slClose();
}

QString ServiceDeskTicketDialog::getSubject() const
{
    return ui->edSubject->text();
}

void ServiceDeskTicketDialog::setSubject(const QString& subject)
{
    const QScopedValueRollback<bool> notAnEdit(changed);
    ui->edSubject->setText(subject);
}

int ServiceDeskTicketDialog::getDepartmentIndex() const
{
    return ui->cbDepartment->currentIndex();
}

QString ServiceDeskTicketDialog::getDepartment() const
{
    return ui->cbDepartment->currentText();
}

void ServiceDeskTicketDialog::setDepartment(const QString& department)
{
    setItem(ui->cbDepartment, department);
}

void ServiceDeskTicketDialog::setDepartments(const QStringList& departments)
{
    setItems(ui->cbDepartment, departments);
}

int ServiceDeskTicketDialog::getPriorityIndex() const
{
    return ui->cbPriorityLevel->currentIndex();
}

QString ServiceDeskTicketDialog::getPriority() const
{
    return ui->cbPriorityLevel->currentText();
}

void ServiceDeskTicketDialog::setPriority(const QString& priority)
{
    setItem(ui->cbPriorityLevel, priority);
}

void ServiceDeskTicketDialog::setPriorities(const QStringList& priorities)
{
    setItems(ui->cbPriorityLevel, priorities);
}

QString ServiceDeskTicketDialog::getIssueDetails() const
{
    return ui->txIssueDetails->toPlainText();
}

void ServiceDeskTicketDialog::setIssueDetails(const QString& details)
{
    const QScopedValueRollback<bool> notAnEdit(changed);
    ui->txIssueDetails->setPlainText(details);
}

bool ServiceDeskTicketDialog::isIncludeDeviceData() const
{
    return ui->ckIncludeDeviceData->checkState() == Qt::Checked;
}

void ServiceDeskTicketDialog::setIncludeDeviceData(bool include)
{
    const QScopedValueRollback<bool> notAnEdit(changed);
    ui->ckIncludeDeviceData->setCheckState(include ? Qt::Checked : Qt::Unchecked);
}

int ServiceDeskTicketDialog::getSubjectMaxLength() const
{
    return ui->edSubject->maxLength();
}

void ServiceDeskTicketDialog::setSubjectMaxLength(int length)
{
    const QScopedValueRollback<bool> notAnEdit(changed);
    ui->edSubject->setMaxLength(length > 0 ? length : longestSubject);
    ui->edSubject->setPlaceholderText(placeholder(length));
}

int ServiceDeskTicketDialog::getIssueDetailsMaxLength() const
{
    return issueDetailsMaxLength;
}

void ServiceDeskTicketDialog::setIssueDetailsMaxLength(int length)
{
    issueDetailsMaxLength = length;
    ui->txIssueDetails->setMaxLength(length);
    ui->txIssueDetails->setPlaceholderText(placeholder(length));
    updateSubmitButton();
}

void ServiceDeskTicketDialog::slSubmit()
{
    const QPointer<ServiceDeskTicketDialog> self(this);
    const bool withinSubmission = submitting;
    submitting = true;
    Q_EMIT dialogEvent(this, evSubmit);
    if (self)
        submitting = withinSubmission;
}

void ServiceDeskTicketDialog::slClose()
{
    if (question && question->isVisible())
        return;
    if (changed && !confirmDiscard())
        return;
    changed = false;
    Q_EMIT dialogEvent(this, evCancel);
}

void ServiceDeskTicketDialog::slIssueDetailsTextChanged()
{
    if (ui->txIssueDetails->isComposing())
        return;
    ui->txIssueDetails->cutSurplus();
    validate();
}

bool ServiceDeskTicketDialog::validate()
{
    changed = true;
    return updateSubmitButton();
}

QWidget* ServiceDeskTicketDialog::startWidget()
{
    const bool onlyDetailsEmpty = !ui->edSubject->text().isEmpty() && ui->txIssueDetails->document()->isEmpty();
    return onlyDetailsEmpty ? static_cast<QWidget*>(ui->txIssueDetails) : ui->edSubject;
}

void ServiceDeskTicketDialog::showEvent(QShowEvent* event)
{
    BaseDialog::showEvent(event);
    fadePlaceholder(ui->edSubject);
    fadePlaceholder(ui->txIssueDetails);
}

void ServiceDeskTicketDialog::hideEvent(QHideEvent* event)
{
    // An answer that came later would be about the form as the host shows it by then.
    if (question && !event->spontaneous())
        question->reject();
    BaseDialog::hideEvent(event);
}

void ServiceDeskTicketDialog::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Cancel)) {
        slClose();
        return;
    }
    // While a host still handles a submission it may run the dialog again: there Return submits anew.
    const QPointer<ServiceDeskTicketDialog> self(this);
    const bool withinSubmission = std::exchange(submitting, false);
    BaseDialog::keyPressEvent(event);
    if (self)
        submitting = withinSubmission;
}

bool ServiceDeskTicketDialog::updateSubmitButton()
{
    const bool valid = isSubjectValid() && isIssueDetailsValid();
    ui->bnSubmit->setEnabled(valid);
    return valid;
}

bool ServiceDeskTicketDialog::isSubjectValid() const
{
    // The line edit itself keeps the limit.
    return !ui->edSubject->text().isEmpty();
}

bool ServiceDeskTicketDialog::isIssueDetailsValid() const
{
    // The document ends with a paragraph mark that is no part of the text.
    const int length = ui->txIssueDetails->document()->characterCount() - 1;
    return length > 0 && (issueDetailsMaxLength <= 0 || length <= issueDetailsMaxLength);
}

bool ServiceDeskTicketDialog::confirmDiscard()
{
    question = new QMessageBox(this);
    question->setWindowFlags(question->windowFlags() | Qt::WindowStaysOnTopHint);
    question->setWindowTitle(literalWindowTitle(brandingStrings().companyName + QLatin1String(" Client")));
    question->setTextFormat(Qt::RichText);
    question->setText(QLatin1String("<font face='Arial'><strong>") + tr("Ticket not submitted")
                      + QLatin1String("</strong></font>"));
    question->setInformativeText(
        QLatin1String("<font face='Arial'>")
        + tr("Do you want to discard all changes?").replace(QLatin1Char(' '), QLatin1String("&nbsp;"))
        + QLatin1String("</font><br/>"));
    question->setStandardButtons(QMessageBox::Discard | QMessageBox::Cancel);
    question->setDefaultButton(QMessageBox::Discard);
    //: Discards the ticket
    question->button(QMessageBox::Discard)->setText(tr("Ok"));
    //: Goes back to the ticket
    question->button(QMessageBox::Cancel)->setText(tr("Cancel"));
    // A font set on the box alone gives way to the desktop's own fonts for labels and buttons of message boxes.
    const QList<QWidget*> parts = question->findChildren<QWidget*>();
    for (QWidget* part : parts)
        part->setFont(font());

    // While the question waits for its answer, the host may delete the dialog with it, or show the form for another
    // matter, which then asks a question of its own.
    const QPointer<QMessageBox> asked = question;
    const bool discard = asked->exec() == QMessageBox::Discard;
    delete asked;
    return discard;
}

void ServiceDeskTicketDialog::setItems(QComboBox* comboBox, const QStringList& items)
{
    const QScopedValueRollback<bool> notAnEdit(changed);
    comboBox->clear();
    comboBox->addItems(items);
}

void ServiceDeskTicketDialog::setItem(QComboBox* comboBox, const QString& item)
{
    const QScopedValueRollback<bool> notAnEdit(changed);
    comboBox->setCurrentText(item);
}
