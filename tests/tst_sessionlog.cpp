#include "GuiTest.h"

#include <QAccessible>
#include <QCheckBox>
#include <QClipboard>
#include <QDateTime>
#include <QElapsedTimer>
#include <QListView>
#include <QPainter>
#include <QScrollBar>
#include <QTextDocumentFragment>
#include <QToolTip>

#include <limits>

namespace {
constexpr int plainTextRole = Qt::UserRole + 1;
constexpr qint64 noon = 1772362800000;

QString localTime(qint64 msecs)
{
    return QDateTime::fromMSecsSinceEpoch(msecs).toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
}

QString html(const QString& time, const QString& action, const QString& color, const QString& path)
{
    return QStringLiteral("<p><span style=\" font-size:14px; color:#a9adb3;\">%1 </span><span style=\" font-size:14px; "
                          "color:%3;\">%2 </span><span style=\" font-size:14px; color:#f3f4f4;\">%4</span></p>")
        .arg(time, action, color, path);
}
} // namespace

/// The activity log: what becomes of an event, and how the list behaves when there are very many.
class SessionLogTest : public GuiTest {
    Q_OBJECT

private Q_SLOTS:
    void actions_data();
    void actions();
    void categories_data();
    void categories();
    void roles();
    void newestFirst();
    void badInput_data();
    void badInput();
    void times_data();
    void times();
    void longPathsKeepTheirEnd();
    void markupIsNeverShown();
    void copies();
    void keys();
    void readersStayWhereTheyAre();
    void manyRows();
    void selectedRowsAreLegible();
    void screenReaders();
    void toolTipsAreLiteral();
    void closedWithTheToolsArea();

private:
    IRemoteConnectionDialog* openLog();
    static QListView& list(IRemoteConnectionDialog* session);
    static void add(IRemoteConnectionDialog* session, const QString& path);
    static QString text(IRemoteConnectionDialog* session, int row, int role = plainTextRole);
};

IRemoteConnectionDialog* SessionLogTest::openLog()
{
    auto* session = get<IRemoteConnectionDialog>();
    session->startRemoteToolsSession(QStringLiteral("t"), 1, QStringLiteral("Jane"), 0, true);
    child<QCheckBox>(session, "fileTransferInfoPanelCheckBox").setChecked(true);
    settle();
    return session;
}

QListView& SessionLogTest::list(IRemoteConnectionDialog* session)
{
    return child<QListView>(session, "logsListView");
}

void SessionLogTest::add(IRemoteConnectionDialog* session, const QString& path)
{
    session->addLogEvent(noon, QStringLiteral("file"), QStringLiteral("file-upload"), path, QStringLiteral("reply"));
}

QString SessionLogTest::text(IRemoteConnectionDialog* session, int row, int role)
{
    return list(session).model()->index(row, 0).data(role).toString();
}

void SessionLogTest::actions_data()
{
    QTest::addColumn<QString>("action");
    QTest::addColumn<QStringList>("texts");
    const auto row = [](const char* action, QStringList texts) {
        while (texts.size() < 4)
            texts << QString();
        QTest::newRow(action) << QString(QLatin1String(action)) << texts;
    };
    const auto transfer = [&](const char* action, const char* done, const char* kind) {
        const QString verb = QLatin1String(kind);
        row(action, {QLatin1String(done), verb + QStringLiteral(" aborted"), verb + QStringLiteral(" cancelled")});
    };
    transfer("file-upload", "File uploaded", "Upload");
    transfer("file-download", "File downloaded", "Download");
    transfer("dir-upload", "Folder uploaded", "Upload");
    transfer("dir-download", "Folder downloaded", "Download");
    row("file-erase", {QStringLiteral("File deleted")});
    row("file-rename", {QStringLiteral("File renamed")});
    row("dir-erase", {QStringLiteral("Folder deleted")});
    row("dir-rename", {QStringLiteral("Folder renamed")});
    row("make-dir", {QStringLiteral("Folder created")});
    row("proc-kill", {QStringLiteral("Process ended")});
    row("serv-start", {QStringLiteral("Service started")});
    row("serv-stop", {QStringLiteral("Service stopped")});
    row("serv-restart", {QStringLiteral("Service restarted")});
    row("serv-pause", {QStringLiteral("Service paused")});
    row("serv-resume", {QStringLiteral("Service resumed")});
    row("session-suspend", {QStringLiteral("Session suspended")});
    row("session-resume", {QStringLiteral("Session resumed")});
    for (const char* raw : {"file-copy", "serv-list", "File-Upload", ""})
        row(raw, {QLatin1String(raw), QLatin1String(raw), QLatin1String(raw), QLatin1String(raw)});
}

void SessionLogTest::actions()
{
    QFETCH(QString, action);
    QFETCH(QStringList, texts);
    auto* session = get<IRemoteConnectionDialog>();
    const QStringList statuses{QStringLiteral("reply"), QStringLiteral("abort"), QStringLiteral("cancel"),
                               QStringLiteral("error"), QStringLiteral("Reply"), QString()};
    // Unknown states leave the key.
    texts << action << action;
    for (int i = 0; i < statuses.size(); ++i) {
        session->addLogEvent(noon, QStringLiteral("file"), action, QStringLiteral("x"), statuses.at(i));
        QCOMPARE(text(session, 0), QString(localTime(noon) + QLatin1Char(' ') + texts.at(i) + QStringLiteral(" x")));
    }
}

void SessionLogTest::categories_data()
{
    QTest::addColumn<QString>("category");
    QTest::addColumn<QString>("color");
    QTest::newRow("file") << QStringLiteral("file") << QStringLiteral("#89C1FE");
    QTest::newRow("process") << QStringLiteral("process") << QStringLiteral("#BCBCFA");
    QTest::newRow("service") << QStringLiteral("service") << QStringLiteral("#C1C36D");
    QTest::newRow("event") << QStringLiteral("event") << QStringLiteral("#6BC39A");
    QTest::newRow("unknown") << QStringLiteral("Process") << QStringLiteral("#89C1FE");
    QTest::newRow("empty") << QString() << QStringLiteral("#89C1FE");
}

void SessionLogTest::categories()
{
    QFETCH(QString, category);
    QFETCH(QString, color);
    auto* session = get<IRemoteConnectionDialog>();
    session->addLogEvent(noon, category, QStringLiteral("file-copy"), QStringLiteral("a.txt"), QString());
    QCOMPARE(text(session, 0, Qt::DisplayRole),
             html(localTime(noon), QStringLiteral("file-copy"), color, QStringLiteral("a.txt")));
}

void SessionLogTest::roles()
{
    auto* session = get<IRemoteConnectionDialog>();
    session->addEmptyLogRow();
    add(session, QStringLiteral("a.txt"));
    const QAbstractItemModel* model = list(session).model();
    QCOMPARE(model->rowCount(), 2);
    QCOMPARE(text(session, 0, Qt::ToolTipRole), QStringLiteral("a.txt"));
    QCOMPARE(text(session, 1, Qt::DisplayRole), html(QString(), QString(), QStringLiteral("#89C1FE"), QString()));
    QCOMPARE(text(session, 1), QStringLiteral("  "));
    for (int role : {int(Qt::EditRole), int(Qt::ForegroundRole), int(Qt::AccessibleTextRole), int(Qt::UserRole)})
        QVERIFY(!model->index(0, 0).data(role).isValid());
    QVERIFY(!model->index(-1, 0).data(Qt::DisplayRole).isValid());
    QVERIFY(!model->index(2, 0).data(Qt::DisplayRole).isValid());
    QCOMPARE(model->rowCount(model->index(0, 0)), 0);
    session->clearLog();
    QCOMPARE(model->rowCount(), 0);
}

void SessionLogTest::newestFirst()
{
    auto* session = get<IRemoteConnectionDialog>();
    for (const char* path : {"A", "B", "C"})
        add(session, QLatin1String(path));
    QString order;
    for (int row = 0; row < 3; ++row)
        order += text(session, row, Qt::ToolTipRole);
    QCOMPARE(order, QStringLiteral("CBA"));
}

void SessionLogTest::badInput_data()
{
    QTest::addColumn<QString>("value");
    QTest::newRow("empty") << QString();
    QTest::newRow("places") << QStringLiteral("%1 %2 %3 %4 %n");
    QTest::newRow("markup") << QStringLiteral("</span></p><img src=\"file:///etc/passwd\"><b>");
    QTest::newRow("lines") << QStringLiteral("a\nb\r\nc\u2028d");
    QTest::newRow("control") << QString(QStringLiteral("a") + QChar(0) + QChar(0x1B) + QChar(0x202E) + QChar(0x85));
    QTest::newRow("half a pair") << QString(QChar(0xD83D));
    QTest::newRow("10,000 characters") << QString(10000, QLatin1Char('w'));
    QTest::newRow("a megabyte") << QString(1024 * 1024, QLatin1Char('w'));
    QTest::newRow("a megabyte of marks") << QString(1024 * 1024, QChar(0x0301));
}

void SessionLogTest::badInput()
{
    QFETCH(QString, value);
    auto* session = openLog();
    QElapsedTimer timer;
    timer.start();
    session->addLogEvent(noon, value, value, value, value);
    window(session).grab();
    QVERIFY(timer.elapsed() < 1000);
    QCOMPARE(text(session, 0), QString(localTime(noon) + QLatin1Char(' ') + value + QLatin1Char(' ') + value));
    QCOMPARE(text(session, 0, Qt::ToolTipRole), value);
    const QString shown = text(session, 0, Qt::DisplayRole);
    QVERIFY(!shown.contains(QChar(0x202E)) && !shown.contains(QLatin1Char('\n')) && !shown.contains(QChar(0)));
    QCOMPARE(shown.count(QLatin1Char('<')), 8);
    // A wild row leaves the others as high as they were.
    add(session, QStringLiteral("a.txt"));
    settle();
    const int height = list(session).visualRect(list(session).model()->index(1, 0)).height();
    QVERIFY2(height > 10 && height < 40, qPrintable(QString::number(height)));
}

void SessionLogTest::times_data()
{
    QTest::addColumn<qint64>("time");
    QTest::addColumn<bool>("known");
    QTest::newRow("zero") << qint64(0) << true;
    QTest::newRow("before 1970") << qint64(-315619200000) << true;
    QTest::newRow("year 9999") << qint64(253402214400000) << true;
    QTest::newRow("lowest") << std::numeric_limits<qint64>::min() << false;
    QTest::newRow("highest") << std::numeric_limits<qint64>::max() << false;
}

void SessionLogTest::times()
{
    QFETCH(qint64, time);
    QFETCH(bool, known);
    auto* session = openLog();
    session->addLogEvent(time, QStringLiteral("file"), QStringLiteral("file-copy"), QStringLiteral("a"), QString());
    window(session).grab();
    QVERIFY(text(session, 0).endsWith(QStringLiteral(" file-copy a")));
    if (known)
        QVERIFY(text(session, 0).startsWith(localTime(time)));
}

void SessionLogTest::longPathsKeepTheirEnd()
{
    auto* session = openLog();
    const QString path = QStringLiteral("C:\\Users\\jane.doe\\Documents\\Reports of the northern region\\final.docx");
    add(session, path);
    const QString shown = QTextDocumentFragment::fromHtml(text(session, 0, Qt::DisplayRole)).toPlainText();
    const QString end = shown.section(QStringLiteral("uploaded "), 1);
    QVERIFY2(end.startsWith(QChar(0x2026)) && path.endsWith(end.mid(1)), qPrintable(end));
    const QFontMetrics metrics(list(session).font());
    QCOMPARE(end, metrics.elidedText(path, Qt::ElideLeft, qMax(570 / 3, 178)));
    QCOMPARE(text(session, 0, Qt::ToolTipRole), path);
}

void SessionLogTest::markupIsNeverShown()
{
    auto* session = openLog();
    const QString wild = QStringLiteral("<h1>&amp;%1</h1>");
    session->addLogEvent(noon, wild, wild, wild, wild);
    const QString shown = QTextDocumentFragment::fromHtml(text(session, 0, Qt::DisplayRole)).toPlainText();
    QCOMPARE(shown, QString(localTime(noon) + QLatin1Char(' ') + wild + QLatin1Char(' ') + wild));
}

void SessionLogTest::copies()
{
    auto* session = openLog();
    for (int i = 0; i < 5; ++i)
        add(session, QString::number(i));
    QListView& view = list(session);
    QClipboard* clipboard = QApplication::clipboard();
    clipboard->setText(QStringLiteral("before"));
    view.setFocus();
    QTest::keySequence(&view, QKeySequence::Copy);
    QCOMPARE(clipboard->text(), QStringLiteral("before"));

    const QAbstractItemModel* model = view.model();
    for (int row : {3, 0, 1})
        view.selectionModel()->select(model->index(row, 0), QItemSelectionModel::Select);
    QTest::keySequence(&view, QKeySequence::Copy);
    const QStringList lines{text(session, 0), text(session, 1), text(session, 3)};
    QCOMPARE(clipboard->text(), lines.join(QLatin1Char('\n')));
    QTest::keySequence(&view, QKeySequence::SelectAll);
    QTest::keySequence(&view, QKeySequence::Copy);
    QCOMPARE(clipboard->text().count(QLatin1Char('\n')), 4);
}

void SessionLogTest::keys()
{
    auto* session = openLog();
    for (int i = 0; i < 1000; ++i)
        add(session, QString::number(i));
    settle();
    QListView& view = list(session);
    view.setCurrentIndex(view.model()->index(0, 0));
    const auto rowAfter = [&](Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(&view, key, modifiers);
        const QRect row = view.visualRect(view.currentIndex());
        return view.viewport()->rect().contains(row.center()) ? view.currentIndex().row() : -1;
    };
    QCOMPARE(rowAfter(Qt::Key_Down), 1);
    QCOMPARE(rowAfter(Qt::Key_Up), 0);
    QCOMPARE(rowAfter(Qt::Key_Up), 0);
    QCOMPARE(rowAfter(Qt::Key_End), 999);
    QCOMPARE(rowAfter(Qt::Key_Down), 999);
    const int page = 999 - rowAfter(Qt::Key_PageUp);
    QVERIFY(page >= 5 && page <= 12);
    QCOMPARE(rowAfter(Qt::Key_PageDown), 999);
    QCOMPARE(rowAfter(Qt::Key_Home), 0);
    QCOMPARE(rowAfter(Qt::Key_Down, Qt::ShiftModifier), 1);
    QCOMPARE(view.selectionModel()->selectedIndexes().size(), 2);
    // Letters search for nothing: that would render a million rows.
    QCOMPARE(rowAfter(Qt::Key_2), 1);

    QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::NoModifier,
                      view.visualRect(view.model()->index(3, 0)).center());
    QCOMPARE(view.currentIndex().row(), 3);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::ShiftModifier,
                      view.visualRect(view.model()->index(5, 0)).center());
    QCOMPARE(view.selectionModel()->selectedIndexes().size(), 3);
    QVERIFY(window(session).isVisible());
}

void SessionLogTest::readersStayWhereTheyAre()
{
    auto* session = openLog();
    for (int i = 0; i < 200; ++i)
        add(session, QString::number(i));
    settle();
    QListView& view = list(session);
    const auto topPath = [&] { return view.indexAt(QPoint(5, 5)).data(Qt::ToolTipRole).toString(); };
    QCOMPARE(topPath(), QStringLiteral("199"));
    view.verticalScrollBar()->setValue(view.verticalScrollBar()->maximum() / 2);
    settle();
    const QString read = topPath();
    const QImage before = view.viewport()->grab().toImage();
    for (int i = 200; i < 300; ++i)
        add(session, QString::number(i));
    settle();
    QCOMPARE(topPath(), read);
    QVERIFY(view.viewport()->grab().toImage() == before);

    // Who is at the top sees what comes.
    view.scrollToTop();
    add(session, QStringLiteral("300"));
    settle();
    QCOMPARE(topPath(), QStringLiteral("300"));
    view.scrollTo(view.model()->index(150, 0), QAbstractItemView::PositionAtCenter);
    QCOMPARE(view.indexAt(view.viewport()->rect().center()).row(), 150);
    session->clearLog();
    settle();
    QCOMPARE(view.verticalScrollBar()->maximum(), 0);
    QVERIFY(!view.indexAt(QPoint(5, 5)).isValid());
}

void SessionLogTest::manyRows()
{
    // What a batch costs must not depend on the rows before it: the fastest of several batches, early and late.
    auto* session = openLog();
    const auto fastestBatch = [&] {
        qint64 fastest = std::numeric_limits<qint64>::max();
        for (int batch = 0; batch < 20; ++batch) {
            QElapsedTimer timer;
            timer.start();
            for (int i = 0; i < 100; ++i)
                add(session, QStringLiteral("C:\\some\\path\\file %1.txt").arg(i));
            QCoreApplication::processEvents();
            fastest = qMin(fastest, timer.nsecsElapsed());
        }
        return fastest;
    };
    const qint64 early = fastestBatch();
    for (int i = 0; i < 300000; ++i)
        add(session, QString());
    settle();
    const qint64 late = fastestBatch();
    QVERIFY2(late < 2 * early + 500000, qPrintable(QStringLiteral("%1 %2").arg(early).arg(late)));
    QVERIFY(list(session).uniformItemSizes());
}

void SessionLogTest::selectedRowsAreLegible()
{
    auto* session = openLog();
    add(session, QStringLiteral("a.txt"));
    add(session, QStringLiteral("b.txt"));
    settle();
    QListView& view = list(session);
    view.setCurrentIndex(view.model()->index(0, 0));
    const auto colors = [&](int row) {
        const QRect area = view.visualRect(view.model()->index(row, 0));
        const QImage image = view.viewport()->grab(area).toImage();
        QSet<QRgb> found;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                found << image.pixel(x, y);
        }
        return found;
    };
    QVERIFY(colors(1).contains(QColor(0x89C1FE).rgb()));
    const QSet<QRgb> selected = colors(0);
    QVERIFY(!selected.contains(QColor(0x89C1FE).rgb()));
    QVERIFY(selected.contains(view.palette().color(QPalette::Active, QPalette::HighlightedText).rgb()));
    QVERIFY(selected.contains(view.palette().color(QPalette::Active, QPalette::Highlight).rgb()));
}

void SessionLogTest::screenReaders()
{
    auto* session = openLog();
    add(session, QStringLiteral("<b>.txt"));
    add(session, QStringLiteral("b.txt"));
    QAccessibleInterface* log = QAccessible::queryAccessibleInterface(&list(session));
    QVERIFY(log);
    QCOMPARE(log->role(), QAccessible::List);
    QCOMPARE(log->childCount(), 2);
    QVERIFY(!log->child(2));
    QAccessibleInterface* row = log->child(1);
    QCOMPARE(row->text(QAccessible::Name), text(session, 1));
    QCOMPARE(row->role(), QAccessible::ListItem);
    QCOMPARE(row->parent(), log);
    QCOMPARE(log->indexOfChild(row), 1);
    QCOMPARE(log->childAt(row->rect().center().x(), row->rect().center().y()), row);
    // A row keeps its identity when others come.
    add(session, QStringLiteral("c.txt"));
    QCOMPARE(log->indexOfChild(row), 2);
    QCOMPARE(log->child(2), row);
    list(session).setCurrentIndex(list(session).model()->index(2, 0));
    QVERIFY(row->state().selected);
    QVERIFY(!row->state().offscreen);
    session->clearLog();
    QCOMPARE(log->childCount(), 0);
    add(session, QStringLiteral("d.txt"));
    QCOMPARE(log->child(0)->text(QAccessible::Name), text(session, 0));
}

void SessionLogTest::toolTipsAreLiteral()
{
    auto* session = openLog();
    add(session, QStringLiteral("<b>bold</b>"));
    settle();
    QListView& view = list(session);
    const QPoint middle = view.visualRect(view.model()->index(0, 0)).center();
    QHelpEvent help(QEvent::ToolTip, middle, view.viewport()->mapToGlobal(middle));
    QCoreApplication::sendEvent(view.viewport(), &help);
    QVERIFY(QToolTip::text().contains(QLatin1String("&lt;b&gt;bold")));
    QToolTip::hideText();
}

void SessionLogTest::closedWithTheToolsArea()
{
    auto* session = openLog();
    add(session, QStringLiteral("a.txt"));
    QVERIFY(list(session).isVisible());
    session->endRemoteToolsSession(QStringLiteral("t"));
    settle();
    QCOMPARE(list(session).model()->rowCount(), 0);
    QVERIFY(!window(session).isVisible());
    session->setKeepRemoteToolsPopup(true);
    session->startRemoteToolsSession(QStringLiteral("t"), 1, QStringLiteral("Jane"), 0, true);
    add(session, QStringLiteral("a.txt"));
    session->endRemoteToolsSession(QStringLiteral("t"));
    settle();
    QCOMPARE(list(session).model()->rowCount(), 1);
}

GUI_TEST_MAIN(SessionLogTest)
#include "tst_sessionlog.moc"
