#include "FuzzHost.h"
#include "IActivationDialog.h"

#include <QLineEdit>
#include <QUrl>

/// What a person types as host and port, separated by a line feed, or what a host program gives as an address.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static IActivationDialog* dialog = fuzzedGui().getActivationDialogInstance();
    static auto& window = dynamic_cast<QWidget&>(*dialog);
    static auto* hostEdit = window.findChild<QLineEdit*>(QStringLiteral("edHost"));
    static auto* portEdit = window.findChild<QLineEdit*>(QStringLiteral("edPort"));

    const QString text = fuzzedText(data, size);
    hostEdit->setText(text.section(QLatin1Char('\n'), 0, 0));
    portEdit->setText(text.section(QLatin1Char('\n'), 1));
    const QString typed = dialog->getServerUrl();
    if (!typed.isEmpty()) {
        // Whatever was typed: only an address of this very form comes out.
        const QUrl url(typed, QUrl::StrictMode);
        require(url.isValid() && url.scheme() == QLatin1String("https") && !url.host().isEmpty());
        require(url.path() == QLatin1String("/command/windows/"));
        require(url.port() >= 1 && url.port() <= 65535);
        require(url.userInfo().isEmpty() && !url.hasQuery() && !url.hasFragment());
        // And it comes out the same when it goes in.
        dialog->setServerUrl(typed);
        require(dialog->getServerUrl() == typed);
    }
    dialog->setServerUrl(text);
    dialog->getServerUrl();
    return 0;
}
