// Measures what the dialogs cost before a person sees them, beside what Qt and KDE offer for the same purpose, and what
// they cost while nobody looks. Writes Markdown tables. What happens once per process is measured in processes of its
// own: this program starts itself.

#include "DialogCatalogue.h"
#include "GuiInterface.h"
#include "IBaseDialog.h"

#ifdef WITH_KDE
#include <KMessageDialog>
#include <KPasswordDialog>
#endif

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QEvent>
#include <QFile>
#include <QMap>
#include <QMessageBox>
#include <QPluginLoader>
#include <QProcess>
#include <QProgressDialog>
#include <QTextStream>
#include <QTimer>

#include <algorithm>
#include <functional>

namespace {
constexpr int rounds = 41;
constexpr int processes = 9;
constexpr int idleMilliseconds = 3000;

/// A window that is made, shown and thrown away.
struct Subject {
    QString name;
    std::function<QWidget*()> show;
    std::function<void()> remove;
};

double milliseconds(const QElapsedTimer& timer)
{
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

double median(QVector<double> values)
{
    const auto middle = values.begin() + values.size() / 2;
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// Turns the event loop until a window has painted its first frame.
class FirstFrame : public QObject {
public:
    explicit FirstFrame(QWidget* window)
    {
        window->installEventFilter(this);
        while (!painted)
            QCoreApplication::processEvents();
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        painted |= event->type() == QEvent::Paint;
        return false;
    }

private:
    bool painted = false;
};

void settle()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

GuiInterface& gui()
{
    static QPluginLoader loader(QStringLiteral(GUI_PLUGIN));
    auto* root = qobject_cast<GuiInterface*>(loader.instance());
    if (!root)
        qFatal("%s", qPrintable(loader.errorString()));
    return *root;
}

QWidget* showDialog(const Family& family)
{
    IBaseDialog* dialog = family.get(gui(), QString());
    dialog->show();
    return dynamic_cast<QWidget*>(dialog);
}

Subject dialogSubject(const Family& family)
{
    return {family.name, [&family] { return showDialog(family); }, [&family] { family.remove(gui(), QString()); }};
}

Subject otherSubject(const QString& name, const std::function<QDialog*()>& create)
{
    static QMap<QString, QDialog*> alive;
    const auto show = [name, create]() -> QWidget* {
        QDialog* dialog = alive[name] = create();
        dialog->show();
        return dialog;
    };
    return {name, show, [name] { delete alive.take(name); }};
}

const QString message = QStringLiteral("The update could not be installed.");

QDialog* styledMessageBox()
{
    static const QString styleSheet = [] {
        QFile file(QStringLiteral(":/styles/appStyleSheet.qss"));
        if (!file.open(QIODevice::ReadOnly))
            qFatal("the plugin's style sheet is missing");
        return QString::fromUtf8(file.readAll());
    }();
    auto* box = new QMessageBox(QMessageBox::Warning, QStringLiteral("Tavik"), message,
                                QMessageBox::Retry | QMessageBox::Cancel);
    box->setStyleSheet(styleSheet);
    return box;
}

QDialog* progressDialog()
{
    auto* dialog = new QProgressDialog(message, QStringLiteral("Cancel"), 0, 100);
    dialog->setMinimumDuration(0);
    dialog->setValue(10);
    return dialog;
}

QVector<Subject> subjects()
{
    QVector<Subject> all{otherSubject(QStringLiteral("QMessageBox, same style sheet"), styledMessageBox)};
    for (const Family& family : dialogFamilies())
        all << dialogSubject(family);
    all << otherSubject(QStringLiteral("QProgressDialog"), progressDialog);
#ifdef WITH_KDE
    all << otherSubject(QStringLiteral("KMessageDialog"),
                        [] { return new KMessageDialog(KMessageDialog::WarningContinueCancel, message); });
    all << otherSubject(QStringLiteral("KPasswordDialog"), [] { return new KPasswordDialog; });
#endif
    return all;
}

double timeToFirstFrame(const Subject& subject)
{
    QElapsedTimer timer;
    timer.start();
    const FirstFrame frame(subject.show());
    const double time = milliseconds(timer);
    subject.remove();
    settle();
    return time;
}

double loadingTime()
{
    QElapsedTimer timer;
    timer.start();
    gui();
    return milliseconds(timer);
}

double residentMegabytes()
{
    QFile file(QStringLiteral("/proc/self/smaps_rollup"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray& line : file.readAll().split('\n')) {
        if (line.startsWith("Rss:"))
            return line.mid(4).simplified().split(' ').first().toDouble() / 1024.0;
    }
    return 0;
}

/// What the plugin adds to a process whose fonts and styles are loaded already, with all dialogs made or on screen.
double addedMegabytes(bool onScreen)
{
    QMessageBox box(QMessageBox::Warning, QStringLiteral("Tavik"), message);
    box.show();
    const FirstFrame frame(&box);
    const double before = residentMegabytes();
    for (const Family& family : dialogFamilies()) {
        if (onScreen)
            const FirstFrame first(showDialog(family));
        else
            family.get(gui(), QString());
    }
    settle();
    return residentMegabytes() - before;
}

double wakeUpsPerSecond(bool withSpinner)
{
    for (const Family& family : dialogFamilies()) {
        if (withSpinner || family.name != QLatin1String("ProgressDialog"))
            family.get(gui(), QString());
    }
    settle();
    int count = 0;
    QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake, [&count] { ++count; });
    QTimer::singleShot(idleMilliseconds, Qt::PreciseTimer, qApp, &QCoreApplication::quit);
    QApplication::exec();
    // The measurement itself wakes the process up at its beginning and at its end.
    return 1000.0 * qMax(0, count - 2) / idleMilliseconds;
}

double measureHere(const QString& what)
{
    if (what == QLatin1String("loading"))
        return loadingTime();
    if (what == QLatin1String("alive") || what == QLatin1String("on screen"))
        return addedMegabytes(what == QLatin1String("on screen"));
    if (what == QLatin1String("wake-ups") || what == QLatin1String("wake-ups with spinner"))
        return wakeUpsPerSecond(what.endsWith(QLatin1String("spinner")));
    gui();
    for (const Subject& subject : subjects()) {
        if (subject.name == what)
            return timeToFirstFrame(subject);
    }
    qFatal("nothing to measure: %s", qPrintable(what));
}

double measureElsewhere(const QString& what)
{
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {what});
    if (!process.waitForFinished(60000) || process.exitCode() != 0)
        qFatal("%s: %s", qPrintable(what), process.readAllStandardError().constData());
    return process.readAllStandardOutput().toDouble();
}

/// The medians of two measurements taken in turns, so that whatever else the machine does strikes both alike.
std::pair<double, double> medians(int times, const std::function<double()>& first,
                                  const std::function<double()>& second)
{
    QVector<double> firstValues;
    QVector<double> secondValues;
    for (int i = 0; i < times; ++i) {
        firstValues << first();
        secondValues << second();
    }
    return {median(firstValues), median(secondValues)};
}

QString number(double value)
{
    return QString::number(value, 'f', 2);
}

void writeFirstFrames(QTextStream& out)
{
    out << "| window | first frame, ms | beside the styled QMessageBox | the same in a fresh process, ms | beside it "
           "|\n"
           "|---|---:|---:|---:|---:|\n";
    const QVector<Subject> all = subjects();
    const Subject& reference = all.first();
    for (const Subject& subject : all) {
        const auto warm = [](const Subject& measured) { return [&measured] { return timeToFirstFrame(measured); }; };
        const auto fresh = [](const Subject& measured) {
            return [&measured] { return measureElsewhere(measured.name); };
        };
        out << "| " << subject.name;
        for (const auto& times :
             {medians(rounds, warm(subject), warm(reference)), medians(processes, fresh(subject), fresh(reference))})
            out << " | " << number(times.first) << " | " << number(times.first / times.second);
        out << " |\n";
        out.flush();
    }
}

void writeCosts(QTextStream& out)
{
    const QVector<QPair<const char*, QString>> costs{
        {"loading the plugin, ms", QStringLiteral("loading")},
        {"memory with all dialogs made, MB resident", QStringLiteral("alive")},
        {"memory with all dialogs on screen, MB resident", QStringLiteral("on screen")},
        {"wake-ups per second with all dialogs made", QStringLiteral("wake-ups with spinner")},
        {"the same without the progress dialog", QStringLiteral("wake-ups")}};
    out << "\n| cost | |\n|---|---:|\n";
    for (const auto& cost : costs) {
        QVector<double> values;
        for (int i = 0; i < processes; ++i)
            values << measureElsewhere(cost.second);
        out << "| " << cost.first << " | " << number(median(values)) << " |\n";
        out.flush();
    }
}
} // namespace

int main(int argc, char** argv)
{
    for (const auto& setting : {std::pair<const char*, const char*>("QT_QPA_PLATFORM", "offscreen"),
                                {"QT_FONT_DPI", "96"},
                                {"LANGUAGE", "en"}}) {
        if (qEnvironmentVariableIsEmpty(setting.first))
            qputenv(setting.first, setting.second);
    }
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QTextStream out(stdout);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() > 1) {
        out << measureHere(arguments.at(1));
        return 0;
    }
    gui();
    writeFirstFrames(out);
    writeCosts(out);
    return 0;
}
