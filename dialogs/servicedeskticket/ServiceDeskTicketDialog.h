#pragma once

#include "BaseDialog.h"
#include "IServiceDeskTicketDialog.h"

#include <QPointer>

#include <memory>

QT_BEGIN_NAMESPACE
class QComboBox;
class QMessageBox;
namespace Ui {
class ServiceDeskTicketDialog;
}
QT_END_NAMESPACE

class ServiceDeskTicketDialog final : public BaseDialog, public virtual IServiceDeskTicketDialog {
    Q_OBJECT

public:
    explicit ServiceDeskTicketDialog(QWidget* parent = nullptr);
    ~ServiceDeskTicketDialog() override;

    /// Accepts a complete form only.
    void done(int result) override;
    void reject() override;

    QString getSubject() const override;
    void setSubject(const QString& subject) override;
    int getDepartmentIndex() const override;
    QString getDepartment() const override;
    void setDepartment(const QString& department) override;
    void setDepartments(const QStringList& departments) override;
    int getPriorityIndex() const override;
    QString getPriority() const override;
    void setPriority(const QString& priority) override;
    void setPriorities(const QStringList& priorities) override;
    QString getIssueDetails() const override;
    void setIssueDetails(const QString& details) override;
    bool isIncludeDeviceData() const override;
    void setIncludeDeviceData(bool include) override;
    int getSubjectMaxLength() const override;
    void setSubjectMaxLength(int length) override;
    int getIssueDetailsMaxLength() const override;
    void setIssueDetailsMaxLength(int length) override;

Q_SIGNALS:
    void dialogEvent(IServiceDeskTicketDialog* pSender, IServiceDeskTicketDialog::TEvent eventType);

public Q_SLOTS:
    void slSubmit();
    void slClose();
    void slIssueDetailsTextChanged();
    /// Enables Submit for a complete form and notes that the person edited something.
    bool validate();

protected:
    QWidget* startWidget() override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    bool updateSubmitButton();
    bool isSubjectValid() const;
    bool isIssueDetailsValid() const;
    bool confirmDiscard();
    void setItems(QComboBox* comboBox, const QStringList& items);
    void setItem(QComboBox* comboBox, const QString& item);

    const std::unique_ptr<Ui::ServiceDeskTicketDialog> ui;
    /// Whether the person edited something that closing would lose.
    bool changed = false;
    /// Whether to discard the changes. Hiding the form takes it back, as if the person had kept them.
    QPointer<QMessageBox> question;
    int issueDetailsMaxLength = 0;
    /// While the host's slot for evSubmit runs.
    bool submitting = false;
};
