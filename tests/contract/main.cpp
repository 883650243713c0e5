#include "GuiTest.h"

#include <algorithm>

namespace {
void describePlugin(QTextStream& out, const QString& path)
{
    const QJsonObject data = QPluginLoader(path).metaData();
    out << "# What hosts rely on. Written by: cmake --build build/dev --target renew-contract\n\nplugin\n";
    for (const char* key : {"IID", "className"})
        out << "    " << key << ' ' << data.value(QLatin1String(key)).toString() << '\n';
    const QJsonDocument custom(data.value(QLatin1String("MetaData")).toObject());
    out << "    MetaData " << custom.toJson(QJsonDocument::Compact) << '\n';
}

/// The files inside the library: pictures with their sizes, the style sheet with its line ends.
void describeResources(QTextStream& out)
{
    out << "\nresources\n";
    QStringList names;
    for (QDirIterator files(QStringLiteral(":/"), QDir::Files, QDirIterator::Subdirectories); files.hasNext();)
        names << files.next();
    names.sort();
    const QRegularExpression ours(QStringLiteral("^:/(?!qt-project.org|qgradient|qpdf)"));
    for (const QString& name : names.filter(ours)) {
        const QImage image(name);
        out << "    " << name;
        if (!image.isNull())
            out << ' ' << image.width() << 'x' << image.height();
        QFile file(name);
        if (name.endsWith(QLatin1String(".qss")) && file.open(QIODevice::ReadOnly))
            out << (file.readAll().contains("\r\n") ? " CRLF" : " LF");
        out << '\n';
    }
}

/// Base classes, signals and slots in their order.
void describeClass(QTextStream& out, const QMetaObject& metaObject)
{
    out << '\n' << metaObject.className();
    for (const QMetaObject* base = metaObject.superClass(); base; base = base->superClass())
        out << " : " << base->className();
    out << '\n';
    for (int i = metaObject.methodOffset(); i < metaObject.methodCount(); ++i) {
        const QMetaMethod method = metaObject.method(i);
        QByteArrayList parameters;
        for (int j = 0; j < method.parameterCount(); ++j)
            parameters << QByteArray(method.parameterTypes().at(j) + ' ' + method.parameterNames().at(j)).trimmed();
        const bool isSignal = method.methodType() == QMetaMethod::Signal;
        out << (isSignal ? "    signal " : "    slot ") << method.name() << '(' << parameters.join(", ") << ")\n";
    }
}

/// The named widgets below @p parent. The library's own classes among them are collected in @p classes.
void describeChildren(QTextStream& out, const QObject& parent, const QString& indent,
                      QMap<QByteArray, const QMetaObject*>& classes)
{
    // Raising a widget reorders the children, and what lies above what is nothing that hosts rely on.
    QObjectList children = parent.children();
    std::stable_sort(children.begin(), children.end(),
                     [](const QObject* a, const QObject* b) { return a->objectName() < b->objectName(); });
    for (const QObject* child : qAsConst(children)) {
        const QMetaObject& metaObject = *child->metaObject();
        const QByteArray className = metaObject.className();
        const bool isOwn = !className.startsWith('Q') || className == "QLabelEx";
        if (isOwn)
            classes.insert(className, &metaObject);
        const QString name = child->objectName();
        const bool isNamed = !name.isEmpty() && !name.startsWith(QLatin1String("qt_"));
        if (child->isWidgetType() && (isNamed || isOwn))
            out << indent << className << ' ' << name << '\n';
        describeChildren(out, *child, indent + QStringLiteral("    "), classes);
    }
}

/// What the window of a dialog is before the host has set anything.
void describeWindow(QTextStream& out, const QWidget& window, const QJsonObject& values)
{
    QString flags;
    QDebug(&flags) << window.windowFlags() << window.windowModality();
    const QPoint center = QGuiApplication::primaryScreen()->availableGeometry().center();
    const bool isCentered = (window.frameGeometry().center() - center).manhattanLength() <= 2;
    // The copyright names the year in which the library was built.
    QString first = QString::fromUtf8(QJsonDocument(values).toJson(QJsonDocument::Compact));
    first.replace(QRegularExpression(QStringLiteral("\\b20\\d\\d\\b")), QStringLiteral("YEAR"));
    out << "    title \"" << window.windowTitle() << "\"\n    window " << flags
        << (isCentered ? "centered" : "not centered") << "\n    values " << first << '\n';
}

void describeDialogs(QTextStream& out, GuiInterface& gui)
{
    QMap<QByteArray, const QMetaObject*> classes;
    for (const Family& family : dialogFamilies()) {
        IBaseDialog* dialog = family.get(gui, QString());
        const QJsonObject values = family.values(*dialog);
        if (family.name == QLatin1String("RemoteConnectionDialog"))
            family.operation(QStringLiteral("addRemoteControlSession"))
                .call(*dialog, {QStringLiteral("id"), QStringLiteral("name"), 0, true});
        const auto& window = dynamic_cast<const QWidget&>(*dialog);
        describeClass(out, *window.metaObject());
        describeWindow(out, window, values);
        describeChildren(out, window, QStringLiteral("    "), classes);
    }
    for (const QMetaObject* metaObject : qAsConst(classes))
        describeClass(out, *metaObject);
}
} // namespace

/// Writes what hosts rely on, read from the built plugin: contract PLUGIN FILE
int main(int argc, char** argv)
{
    prepareTestEnvironment();
    const QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    QPluginLoader loader(arguments.value(1));
    auto* gui = qobject_cast<GuiInterface*>(loader.instance());
    QFile file(arguments.value(2));
    if (!gui || !file.open(QIODevice::WriteOnly))
        qFatal("%s %s", qPrintable(loader.errorString()), qPrintable(file.errorString()));

    QTextStream out(&file);
    describePlugin(out, arguments.at(1));
    describeResources(out);
    describeDialogs(out, *gui);
    return 0;
}
