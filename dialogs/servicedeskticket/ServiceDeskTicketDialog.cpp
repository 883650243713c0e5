#include "ServiceDeskTicketDialog.h"

#include "BrandingStrings.h"
#include "DisplayText.h"
#include "ui_ServiceDeskTicketDialog.h"

#include <QKeyEvent>
#include <QMessageBox>
#include <QPointer>
#include <QScopedValueRollback>
#include <QTextBlock>
#include <QTextLayout>

#include <algorithm>

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

int indexOfHalfPair(const QString& text)
{
    for (int i = 0; i < text.size(); ++i) {
        const bool isPair = text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
        if (isPair)
            ++i;
        else if (text[i].isSurrogate())
            return i;
    }
    return -1;
}

/// The last position up to @p limit that does not lie within what a person sees as one character.
int characterBoundary(QTextDocument* document, int limit)
{
    QTextCursor cursor(document);
    cursor.setPosition(limit);
    // An empty line has no layout that could say so.
    if (!cursor.atBlockStart() && !cursor.block().layout()->isValidCursorPosition(cursor.positionInBlock()))
        cursor.movePosition(QTextCursor::PreviousCharacter);
    return cursor.position();
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
    connect(this, &QDialog::accepted, this, &ServiceDeskTicketDialog::slSubmit);
    connect(ui->edSubject, &QLineEdit::textChanged, this, &ServiceDeskTicketDialog::dropHalfCharacter);
    connect(ui->edSubject, &QLineEdit::textChanged, this, &ServiceDeskTicketDialog::validate);
    connect(ui->txIssueDetails->document(), &QTextDocument::contentsChange, this,
            [this](int position) { editPosition = position; });
    connect(ui->txIssueDetails, &QTextEdit::textChanged, this, &ServiceDeskTicketDialog::slIssueDetailsTextChanged);
    connect(ui->cbDepartment, &QComboBox::currentTextChanged, this, &ServiceDeskTicketDialog::validate);
    connect(ui->cbPriorityLevel, &QComboBox::currentTextChanged, this, &ServiceDeskTicketDialog::validate);
    connect(ui->ckIncludeDeviceData, &QCheckBox::stateChanged, this, &ServiceDeskTicketDialog::validate);
    connect(ui->lbIncludeDeviceDataText, &QLabelEx::click, ui->ckIncludeDeviceData, &QCheckBox::toggle);

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
    // Longer text that is already there stays until the next edit, which brings it within the limit.
    issueDetailsMaxLength = length;
    ui->txIssueDetails->setInsertionLimit(length);
    ui->txIssueDetails->setPlaceholderText(placeholder(length));
    updateSubmitButton();
}

void ServiceDeskTicketDialog::slSubmit()
{
    // A host may answer by accepting the dialog, which leads here again.
    if (submitting)
        return;
    submitting = true;
    const QPointer<ServiceDeskTicketDialog> self(this);
    Q_EMIT dialogEvent(this, evSubmit);
    if (self)
        submitting = false;
}

void ServiceDeskTicketDialog::slClose()
{
    if (changed && !confirmDiscard())
        return;
    changed = false;
    Q_EMIT dialogEvent(this, evCancel);
}

void ServiceDeskTicketDialog::slIssueDetailsTextChanged()
{
    QTextDocument* document = ui->txIssueDetails->document();
    if (issueDetailsMaxLength > 0 && document->characterCount() - 1 > issueDetailsMaxLength) {
        // What stood before the edit is not split by it: a combining mark typed at the limit leaves its letter alone.
        const int begin =
            qMax(characterBoundary(document, issueDetailsMaxLength), qMin(editPosition, issueDetailsMaxLength));
        QTextCursor surplus(document);
        // Undo takes back the edit and its cut together.
        surplus.joinPreviousEditBlock();
        surplus.setPosition(begin);
        surplus.movePosition(QTextCursor::End, QTextCursor::KeepAnchor);
        surplus.removeSelectedText();
        surplus.endEditBlock();
        ui->txIssueDetails->moveCursor(QTextCursor::End);
    }
    validate();
}

bool ServiceDeskTicketDialog::validate()
{
    changed = true;
    return updateSubmitButton();
}

void ServiceDeskTicketDialog::showEvent(QShowEvent* event)
{
    BaseDialog::showEvent(event);
    fadePlaceholder(ui->edSubject);
    fadePlaceholder(ui->txIssueDetails);
}

void ServiceDeskTicketDialog::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Cancel))
        slClose();
    else
        BaseDialog::keyPressEvent(event);
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

void ServiceDeskTicketDialog::dropHalfCharacter()
{
    // The line edit cuts at its limit without regard for surrogate pairs.
    const QString text = ui->edSubject->text();
    const int half = text.size() < ui->edSubject->maxLength() ? -1 : indexOfHalfPair(text);
    if (half < 0)
        return;
    ui->edSubject->setSelection(half, 1);
    ui->edSubject->del();
}

bool ServiceDeskTicketDialog::confirmDiscard()
{
    // The host may delete the dialog, and the question with it, while the question waits for its answer.
    const QPointer<QMessageBox> question(new QMessageBox(this));
    question->setFont(font());
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

    const bool discard = question->exec() == QMessageBox::Discard;
    delete question;
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
