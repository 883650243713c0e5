#pragma once

#include "BaseDialog.h"
#include "IAcceptMessageDialog.h"

#include <memory>

QT_BEGIN_NAMESPACE
namespace Ui {
class AcceptMessageDialog;
}
QT_END_NAMESPACE

class AcceptMessageDialog final : public BaseDialog, public virtual IAcceptMessageDialog {
    Q_OBJECT

public:
    /// A top-level window whatever @p parent is.
    explicit AcceptMessageDialog(const QString& message, QWidget* parent = nullptr);
    ~AcceptMessageDialog() override;

    QString message() const override;
    void setMessage(const QString& text) override;

Q_SIGNALS:
    void dialogEvent(IAcceptMessageDialog* pSender, IAcceptMessageDialog::TEvent eventType);

public Q_SLOTS:
    void slClose();
    void slInnerButtonClick();
    void accept() override;
    void reject() override;

protected:
    QWidget* startWidget() override;

private:
    const std::unique_ptr<Ui::AcceptMessageDialog> ui;
};
