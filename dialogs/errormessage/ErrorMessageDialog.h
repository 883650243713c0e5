#pragma once

#include "BaseDialog.h"
#include "IErrorMessageDialog.h"

#include <memory>

QT_BEGIN_NAMESPACE
namespace Ui {
class ErrorMessageDialog;
}
QT_END_NAMESPACE

class ErrorMessageDialog final : public BaseDialog, public virtual IErrorMessageDialog {
    Q_OBJECT

public:
    /// A top-level window whatever @p parent is.
    explicit ErrorMessageDialog(const QString& message, QWidget* parent = nullptr);
    ~ErrorMessageDialog() override;

    QString message() const override;
    void setMessage(const QString& text) override;

Q_SIGNALS:
    void dialogEvent(IErrorMessageDialog* pSender, IErrorMessageDialog::TEvent eventType);

public Q_SLOTS:
    void slClose();
    void slInnerButtonClick();
    void accept() override;
    void reject() override;

private:
    const std::unique_ptr<Ui::ErrorMessageDialog> ui;
};
