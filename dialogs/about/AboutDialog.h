#pragma once

#include "BaseDialog.h"
#include "IAboutDialog.h"

#include <memory>

QT_BEGIN_NAMESPACE
namespace Ui {
class AboutDialog;
}
QT_END_NAMESPACE

class AboutDialog final : public BaseDialog, public virtual IAboutDialog {
    Q_OBJECT

public:
    explicit AboutDialog(QWidget* parent = nullptr);
    ~AboutDialog() override;

    void show() override;

    QString getVersion() const override;
    void setVersion(const QString& version) override;
    QString getCopyright() const override;
    void setCopyright(const QString& copyright) override;
    QString getServer() const override;
    void setServer(const QString& server) override;
    QString getLastCommunicationTime() const override;
    void setLastCommunicationTime(QString time) override;
    void setCopyrightVisible(bool visible) override;

Q_SIGNALS:
    void dialogEvent(IAboutDialog* pSender, IAboutDialog::TEvent eventType);

public Q_SLOTS:
    void slLinkClick();
    void slButtonUpdateClick();
    void slClose();
    void accept() override;
    void reject() override;

protected:
    QWidget* startWidget() override;

private:
    void showSupportContacts();
    /// Hides @p row and closes the gap that it would leave.
    void removeRow(QWidget* row);

    const std::unique_ptr<Ui::AboutDialog> ui;
};
