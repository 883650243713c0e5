#include "AboutDialog.h"

#include "BrandingStrings.h"
#include "DisplayText.h"
#include "ui_AboutDialog.h"

namespace {
/// From one row of the form to the next.
constexpr int rowHeight = 24;

/// A value that is too long for its line can be read in full as its tool tip.
void setValue(QLabel* label, const QString& text)
{
    label->setText(text);
    label->setToolTip(literalToolTip(text));
}

/// The last four characters of the compiler's date are the year.
QString buildYear()
{
    return QString(QLatin1String(__DATE__).right(4));
}

QString linkTo(const QString& address)
{
    const QString escaped = address.toHtmlEscaped();
    return QStringLiteral("<html><head/><body><p><a href=\"%1\"><span style=\" text-decoration: underline; "
                          "color:#0000ff;\">%1</span></a></p></body></html>")
        .arg(escaped);
}
} // namespace

AboutDialog::AboutDialog(QWidget* parent) : BaseDialog(parent), ui(std::make_unique<Ui::AboutDialog>())
{
    ui->setupUi(this);
    setCopyright(QStringLiteral(" %1 %2").arg(buildYear(), QStringLiteral("Brisel")));
    showSupportContacts();
    setupWindow();
    setCaption(ui->lblAppName, ui->lblType, tr("About"));

    connect(ui->btnOk, &QPushButton::clicked, this, &AboutDialog::slClose);
    connect(ui->btnClose, &QPushButton::clicked, this, &AboutDialog::slClose);
    connect(ui->btnUpdateNow, &QPushButton::clicked, this, &AboutDialog::slButtonUpdateClick);
    connect(ui->lblWebSiteLink, &QLabel::linkActivated, this, &AboutDialog::slLinkClick);
}

AboutDialog::~AboutDialog()
{
    qDebug("About dialog destroyed");
}

void AboutDialog::show()
{
    showNormal();
    activateWindow();
    raise();
    BaseDialog::show();
}

QString AboutDialog::getVersion() const
{
    return ui->lblVersionNumber->text();
}

void AboutDialog::setVersion(const QString& version)
{
    setValue(ui->lblVersionNumber, version);
}

QString AboutDialog::getCopyright() const
{
    return ui->lblCopyright->text();
}

void AboutDialog::setCopyright(const QString& copyright)
{
    setValue(ui->lblCopyright, copyright);
}

QString AboutDialog::getServer() const
{
    return ui->cdm_server->text();
}

void AboutDialog::setServer(const QString& server)
{
    setValue(ui->cdm_server, server);
}

QString AboutDialog::getLastCommunicationTime() const
{
    return ui->last_communication_time->text();
}

void AboutDialog::setLastCommunicationTime(QString time)
{
    setValue(ui->last_communication_time, time);
}

void AboutDialog::setCopyrightVisible(bool visible)
{
    ui->lblAllRightsReserved->setVisible(visible);
    ui->lblCopyright->setVisible(visible);
}

void AboutDialog::slLinkClick()
{
    Q_EMIT dialogEvent(this, evLinkClicked);
}

void AboutDialog::slButtonUpdateClick()
{
    Q_EMIT dialogEvent(this, evUpdateNow);
}

void AboutDialog::slClose()
{
    Q_EMIT dialogEvent(this, evClose);
}

void AboutDialog::accept()
{
    slClose();
}

void AboutDialog::reject()
{
    slClose();
}

QWidget* AboutDialog::startWidget()
{
    return ui->btnOk;
}

void AboutDialog::showSupportContacts()
{
    const BrandingStrings& branding = brandingStrings();
    setValue(ui->lblSupportPhone, branding.supportPhone);
    setValue(ui->lblSupportEmail, branding.supportEmail);
    ui->lblWebSiteLink->setText(linkTo(branding.supportWebsite));
    ui->lblWebSiteLink->setToolTip(literalToolTip(branding.supportWebsite));

    if (branding.supportPhone.isEmpty())
        removeRow(ui->supportPhoneBlock);
    if (branding.supportEmail.isEmpty())
        removeRow(ui->supportEmailBlock);
}

void AboutDialog::removeRow(QWidget* row)
{
    row->hide();
    const QList<QWidget*> widgets = findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget* widget : widgets) {
        if (widget->y() > row->y())
            widget->move(widget->x(), widget->y() - rowHeight);
    }
    for (QWidget* frame :
         {static_cast<QWidget*>(ui->content), static_cast<QWidget*>(ui->background), static_cast<QWidget*>(this)})
        frame->resize(frame->width(), frame->height() - rowHeight);
}
