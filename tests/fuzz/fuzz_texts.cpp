#include "BrandingStrings.h"
#include "GuiInterface.h"
#include "IActivationDialog.h"

#include <QtWidgets>

namespace {
/// The dialog of the plugin, in a program whose main() is the fuzzer's.
IActivationDialog* makeDialog()
{
    static int argc = 1;
    static char name[] = "fuzz";
    static char* argv[] = {name, nullptr};
    // Never destroyed: libFuzzer leaves through exit(), when the thread's data that windows need is gone already.
    [[maybe_unused]] static auto* const application = new QApplication(argc, argv);
    QLoggingCategory::setFilterRules(QStringLiteral("*=false"));
    static QPluginLoader loader(QStringLiteral(GUI_PLUGIN));
    auto* gui = qobject_cast<GuiInterface*>(loader.instance());
    Q_ASSERT(gui);
    return gui->getActivationDialogInstance();
}

/// Host and port, separated by a line feed, as a person types them, and the text as an address from the host.
void checkAddress(const QString& text)
{
    static IActivationDialog* dialog = makeDialog();
    const auto type = [](const char* field, const QString& part) {
        dynamic_cast<QWidget&>(*dialog).findChild<QLineEdit*>(QLatin1String(field))->setText(part);
    };
    type("edHost", text.section(QLatin1Char('\n'), 0, 0));
    type("edPort", text.section(QLatin1Char('\n'), 1));
    const QString typed = dialog->getServerUrl();
    if (!typed.isEmpty()) {
        // Whatever was typed: only an address of this very form comes out.
        const QUrl url(typed, QUrl::StrictMode);
        Q_ASSERT(url.isValid() && url.scheme() == QLatin1String("https") && !url.host().isEmpty());
        Q_ASSERT(url.path() == QLatin1String("/command/windows/") && url.port() >= 1 && url.port() <= 65535);
        Q_ASSERT(url.userInfo().isEmpty() && !url.hasQuery() && !url.hasFragment());
        // And it comes out the same when it goes in.
        dialog->setServerUrl(typed);
        Q_ASSERT(dialog->getServerUrl() == typed);
    }
    dialog->setServerUrl(text);
    dialog->getServerUrl();
}

void checkBranding(const QByteArray& content)
{
    static const QTemporaryDir directory;
    QFile file(directory.filePath(QStringLiteral("oem.strings")));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(file.fileName()));
    file.close();
    const BrandingStrings strings(directory.path());
    Q_ASSERT(!strings.companyName.isEmpty() && !strings.agentName.isEmpty());
    Q_ASSERT(strings.productFullName == strings.companyName + QLatin1Char(' ') + strings.agentName);
    Q_ASSERT(strings.vendorName == QLatin1String("BRISEL"));
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const auto bytes = QByteArray(reinterpret_cast<const char*>(data), static_cast<int>(size));
    // After a first byte that UTF-8 does not have come the units of a QString, whatever they are.
    const QString text = bytes.startsWith('\xFF')
        ? QString(reinterpret_cast<const QChar*>(bytes.mid(1).constData()), (bytes.size() - 1) / 2)
        : QString::fromUtf8(bytes);
    checkAddress(text);
    checkBranding(bytes);
    return 0;
}
