// Measures the activity log of the session window against the widgets of Qt that one would show a log in otherwise: the
// same lines, the same size of the view, one run. Writes a Markdown table.

#include "GuiInterface.h"
#include "IRemoteConnectionDialog.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QCheckBox>
#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QEvent>
#include <QListView>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPluginLoader>
#include <QScrollBar>
#include <QTextBrowser>
#include <QTextStream>

#include <algorithm>
#include <ctime>
#include <functional>
#include <memory>
#include <vector>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace {
constexpr int eventsPerTurn = 100;
constexpr int measuredTurns = 50;
constexpr int measuredFrames = 100;

qint64 bytesInUse()
{
#if defined(__GLIBC__) && (__GLIBC__ > 2 || __GLIBC_MINOR__ >= 33)
    return static_cast<qint64>(mallinfo2().uordblks);
#else
    return 0;
#endif
}

QString path(int number)
{
    return QStringLiteral("C:\\Users\\jane.doe\\Documents\\Projects\\North\\Folder %1\\Report %2.docx")
        .arg(number / 100)
        .arg(number);
}

/// One line as the session window shows it, where paths are elided.
QString html(int number)
{
    return QStringLiteral("<p><span style=\" font-size:14px; color:#a9adb3;\">2026-03-01 10:20:30 </span>"
                          "<span style=\" font-size:14px; color:#89C1FE;\">File uploaded </span>"
                          "<span style=\" font-size:14px; color:#f3f4f4;\">%1</span></p>")
        .arg(QChar(0x2026) + path(number).right(26));
}

/// Tells when a view has painted.
class PaintWatch final : public QObject {
public:
    explicit PaintWatch(QWidget* viewport)
    {
        viewport->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        painted |= event->type() == QEvent::Paint;
        return QObject::eventFilter(watched, event);
    }

    /// Ends the turn: layouts, timers and painting that the events before have made necessary.
    void finishTurn()
    {
        painted = false;
        for (int i = 0; i < 5 && !painted; ++i)
            QCoreApplication::processEvents();
    }

private:
    bool painted = false;
};

struct Subject {
    QString name;
    QAbstractScrollArea* view;
    std::function<void(int)> append;
    int longestRun;
};

struct Result {
    double microsecondsPerEvent = 0;
    double longestTurn = 0; // milliseconds
    double microsecondsPerFrame = 0;
    double bytesPerRow = 0;
};

/// Counts the time that the processor worked for this program, whatever else the machine does meanwhile.
class WorkTimer {
public:
    double microseconds() const
    {
        return static_cast<double>(std::clock() - start) * 1e6 / CLOCKS_PER_SEC;
    }

private:
    const std::clock_t start = std::clock();
};

/// Rows are filled in without being measured up to a point shortly before each size, then measured turn by turn.
class Measurement {
public:
    explicit Measurement(const Subject& measured) : subject(measured), watch(measured.view->viewport())
    {
        watch.finishTurn();
    }

    Result at(int size)
    {
        const qint64 bytesBefore = bytesInUse();
        fill(size - std::min(measuredTurns * eventsPerTurn, size * 9 / 10), std::max(eventsPerTurn, size / 50));
        Result result;
        double total = 0;
        int turns = 0;
        const int first = rows;
        while (rows < size) {
            const double duration = turn(std::min(eventsPerTurn, size - rows));
            result.longestTurn = std::max(result.longestTurn, duration / 1000.0);
            total += duration;
            ++turns;
        }
        result.microsecondsPerEvent = total / (rows - first);
        bytes += bytesInUse() - bytesBefore;
        result.bytesPerRow = static_cast<double>(bytes) / rows;
        result.microsecondsPerFrame = frame();
        return result;
    }

private:
    double turn(int count)
    {
        const WorkTimer timer;
        for (int i = 0; i < count; ++i)
            subject.append(rows++);
        watch.finishTurn();
        return timer.microseconds();
    }

    void fill(int size, int step)
    {
        while (rows < size)
            turn(std::min(step, size - rows));
    }

    double frame()
    {
        QScrollBar* const bar = subject.view->verticalScrollBar();
        const int newest = bar->value();
        bar->setValue(bar->maximum() / 2);
        watch.finishTurn();
        std::vector<double> durations;
        for (int i = 0; i < measuredFrames; ++i) {
            if (bar->value() + bar->pageStep() >= bar->maximum())
                bar->setValue(0);
            watch.finishTurn();
            idle();
            const WorkTimer timer;
            bar->setValue(bar->value() + bar->pageStep());
            watch.finishTurn();
            durations.push_back(timer.microseconds());
        }
        bar->setValue(newest == 0 ? 0 : bar->maximum());
        watch.finishTurn();
        std::nth_element(durations.begin(), durations.begin() + measuredFrames / 2, durations.end());
        return durations[measuredFrames / 2];
    }

    /// A screen shows 60 frames in a second; between two of them there is time.
    static void idle()
    {
        QElapsedTimer timer;
        timer.start();
        while (timer.elapsed() < 10)
            QCoreApplication::processEvents();
    }

    const Subject& subject;
    PaintWatch watch;
    int rows = 0;
    qint64 bytes = 0;
};

template <class View>
View* createView(const QSize& viewportSize)
{
    auto* view = new View;
    view->setFrameShape(QFrame::NoFrame);
    view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    view->show();
    view->resize(view->size() + viewportSize - view->viewport()->size());
    return view;
}

QVector<Subject> otherViews(const QSize& viewportSize)
{
    auto* plainText = createView<QPlainTextEdit>(viewportSize);
    plainText->setReadOnly(true);
    plainText->setUndoRedoEnabled(false);
    auto* browser = createView<QTextBrowser>(viewportSize);
    browser->setUndoRedoEnabled(false);
    auto* list = createView<QListWidget>(viewportSize);
    list->setUniformItemSizes(true);
    return {
        {QStringLiteral("QPlainTextEdit::appendHtml"), plainText,
         [plainText](int number) { plainText->appendHtml(html(number)); }, 1000000},
        {QStringLiteral("QTextBrowser::append"), browser, [browser](int number) { browser->append(html(number)); },
         10000},
        {QStringLiteral("QListWidget::insertItem, plain text"), list,
         [list](int number) { list->insertItem(0, path(number)); }, 100000},
    };
}

Subject sessionWindow(IRemoteConnectionDialog* dialog)
{
    dialog->startRemoteToolsSession(QStringLiteral("1"), 1, QStringLiteral("Jane Doe"), 0, true);
    auto* window = dynamic_cast<QWidget*>(dialog);
    window->findChild<QCheckBox*>(QStringLiteral("fileTransferInfoPanelCheckBox"))->setChecked(true);
    auto* view = window->findChild<QListView*>(QStringLiteral("logsListView"));
    while (!view->isVisible())
        QCoreApplication::processEvents();
    const auto append = [dialog](int number) {
        dialog->addLogEvent(1772360430000, QStringLiteral("file"), QStringLiteral("file-upload"), path(number),
                            QStringLiteral("reply"));
    };
    return {QStringLiteral("Session window"), view, append, 1000000};
}

void writeResult(QTextStream& out, const QString& name, int rows, const Result& result, const Result& own)
{
    const auto cell = [&](double value, int digits) { out << QString::number(value, 'f', digits) << " | "; };
    out << "| " << name << " | " << rows << " | ";
    cell(result.microsecondsPerEvent, 2);
    cell(own.microsecondsPerEvent / result.microsecondsPerEvent, 2);
    cell(result.longestTurn, 2);
    cell(result.microsecondsPerFrame, 0);
    cell(own.microsecondsPerFrame / result.microsecondsPerFrame, 2);
    cell(result.bytesPerRow, 0);
    out << '\n';
    out.flush();
}
} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QCommandLineParser parser;
    parser.addHelpOption();
    const QCommandLineOption largest(QStringLiteral("rows"), QStringLiteral("The largest log to measure."),
                                     QStringLiteral("number"), QStringLiteral("1000000"));
    parser.addOption(largest);
    parser.process(application);

    QPluginLoader loader(QStringLiteral(GUI_PLUGIN));
    auto* gui = qobject_cast<GuiInterface*>(loader.instance());
    if (!gui) {
        QTextStream(stderr) << loader.errorString() << '\n';
        return 1;
    }

    const Subject own = sessionWindow(gui->getRemoteConnectionDialogInstance());
    Measurement ownMeasurement(own);
    const QVector<Subject> others = otherViews(own.view->viewport()->size());
    std::vector<std::unique_ptr<Measurement>> measurements;
    for (const Subject& other : others)
        measurements.push_back(std::make_unique<Measurement>(other));

    QTextStream out(stdout);
    out << "| view | rows | us per event | session window / this | longest turn, ms | us per frame scrolled "
           "| session window / this | bytes per row |\n|---|---:|---:|---:|---:|---:|---:|---:|\n";
    for (int rows : {1000, 10000, 100000, 1000000}) {
        if (rows > parser.value(largest).toInt())
            break;
        const Result ownResult = ownMeasurement.at(rows);
        writeResult(out, own.name, rows, ownResult, ownResult);
        for (int i = 0; i < others.size(); ++i) {
            if (rows <= others.at(i).longestRun)
                writeResult(out, others.at(i).name, rows, measurements[static_cast<size_t>(i)]->at(rows), ownResult);
        }
    }
    gui->deleteRemoteConnectionDialogInstance();
    for (const Subject& other : others)
        delete other.view;
    return 0;
}
