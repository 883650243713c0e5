#include "GuiTest.h"

#include <QAccessible>
#include <QCheckBox>
#include <QClipboard>
#include <QElapsedTimer>
#include <QListView>
#include <QScrollBar>
#include <QToolTip>

#include <limits>

namespace {
using Session = IRemoteConnectionDialog;

constexpr int plainTextRole = Qt::UserRole + 1;
constexpr qint64 noon = 1772362800000;
const QString noonText(QStringLiteral("2026-03-01 12:00:00 "));
const QString path(QStringLiteral("C:\\Users\\jane.doe\\Documents\\Reports of the northern region\\final.docx"));
} // namespace

/// The activity log: what becomes of an event, and how the list behaves when there are very many.
class SessionLogTest : public GuiTest {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void unknownActions();
    void rolesAndColors();
    void badInput_data();
    void badInput();
    void longPathsKeepTheirEnd();
    void copies();
    void keys();
    void readersStayWhereTheyAre();
    void selectedRowsAreLegible();
    void screenReaders();
    void closedWithTheToolsArea();

private:
    void add(const QString& object);
    void addMany(int count);
    QString text(int row, int role = plainTextRole) const;
    QRect rowRect(int row) const;

    Session* session = nullptr;
    QListView* view = nullptr;
};

void SessionLogTest::init()
{
    GuiTest::init();
    // Rows show the time of the person's zone, here one hour ahead.
    qputenv("TZ", "CET-1");
    session = get<Session>();
    session->startRemoteToolsSession(QStringLiteral("t"), 1, QStringLiteral("Jane"), 0, true);
    child<QCheckBox>(session, "fileTransferInfoPanelCheckBox").setChecked(true);
    settle();
    view = &child<QListView>(session, "logsListView");
    view->setFocus();
}

void SessionLogTest::add(const QString& object)
{
    session->addLogEvent(noon, QStringLiteral("file"), QStringLiteral("file-upload"), object, QStringLiteral("reply"));
}

void SessionLogTest::addMany(int count)
{
    for (int i = 0; i < count; ++i)
        add(QString::number(i));
    settle();
}

QString SessionLogTest::text(int row, int role) const
{
    return view->model()->index(row, 0).data(role).toString();
}

QRect SessionLogTest::rowRect(int row) const
{
    return view->visualRect(view->model()->index(row, 0));
}

void SessionLogTest::unknownActions()
{
    const char* const rows[][2] = {{"file-upload", "Reply"},
                                   {"file-copy", "reply"},
                                   {"serv-list", "reply"},
                                   {"File-Upload", "reply"},
                                   {"", "reply"}};
    for (const auto& row : rows) {
        session->addLogEvent(noon, QString(), QLatin1String(row[0]), QStringLiteral("x"), QLatin1String(row[1]));
        QCOMPARE(text(0), QString(noonText + QLatin1String(row[0]) + QStringLiteral(" x")));
    }
}

void SessionLogTest::rolesAndColors()
{
    const char* const colors[][2] = {{"file", "#89C1FE"},  {"process", "#BCBCFA"}, {"service", "#C1C36D"},
                                     {"event", "#6BC39A"}, {"Process", "#89C1FE"}, {"", "#89C1FE"}};
    const QString html = QStringLiteral("<p><span style=\" font-size:14px; color:#a9adb3;\">%1</span><span style=\" "
                                        "font-size:14px; color:%2;\">%3 </span><span style=\" font-size:14px; "
                                        "color:#f3f4f4;\">%3</span></p>");
    for (const auto& row : colors) {
        const QString object = QLatin1String(row[0]);
        session->addLogEvent(noon, object, object, object, QString());
        QCOMPARE(text(0, Qt::DisplayRole), html.arg(noonText, QLatin1String(row[1]), object));
        QCOMPARE(text(0, Qt::ToolTipRole), object);
    }
    session->addEmptyLogRow();
    QCOMPARE(text(0, Qt::DisplayRole), html.arg(QStringLiteral(" "), QStringLiteral("#89C1FE"), QString()));
    QCOMPARE(text(0), QStringLiteral("  "));
    QCOMPARE(view->model()->rowCount(), 7);
    for (int role : {int(Qt::EditRole), int(Qt::ForegroundRole), int(Qt::AccessibleTextRole), int(Qt::UserRole)})
        QVERIFY(!view->model()->index(1, 0).data(role).isValid());
}

void SessionLogTest::badInput_data()
{
    QTest::addColumn<QString>("value");
    QTest::newRow("markup") << QStringLiteral("<h1>&amp;%1\r\n\u202E</h1>");
    QTest::newRow("a megabyte") << QString(1024 * 1024, QLatin1Char('w'));
    QTest::newRow("a megabyte of marks") << QString(1024 * 1024, QChar(0x0301));
}

void SessionLogTest::badInput()
{
    using Limits = std::numeric_limits<qint64>;
    QFETCH(QString, value);
    for (qint64 time : {Limits::min(), Limits::max(), noon}) {
        QElapsedTimer timer;
        timer.start();
        session->addLogEvent(time, value, value, value, value);
        window(session).grab();
        QVERIFY(timer.elapsed() < 1000);
        QVERIFY(text(0).endsWith(QString(QLatin1Char(' ') + value + QLatin1Char(' ') + value)));
        QCOMPARE(text(0, Qt::DisplayRole).count(QLatin1Char('<')), 8);
        QVERIFY(!text(0, Qt::DisplayRole).contains(QRegularExpression(QStringLiteral("[\\r\\n\u202E]"))));
    }
    // A wild row is as high as others, and its tool tip is no markup.
    const QRect row = view->visualRect(view->model()->index(0, 0));
    QVERIFY2(row.height() > 10 && row.height() < 40, qPrintable(QString::number(row.height())));
    QHelpEvent help(QEvent::ToolTip, row.center(), view->viewport()->mapToGlobal(row.center()));
    QCoreApplication::sendEvent(view->viewport(), &help);
    const QString toolTip = QToolTip::text();
    QVERIFY(toolTip.size() < 2000 && !toolTip.contains(QLatin1String("<h1>")) && !toolTip.contains(QChar(0x202E)));
    QToolTip::hideText();
}

void SessionLogTest::longPathsKeepTheirEnd()
{
    add(path);
    const QString end = QFontMetrics(view->font()).elidedText(path, Qt::ElideLeft, qMax(570 / 3, 178));
    QVERIFY(end.startsWith(QChar(0x2026)) && path.endsWith(end.mid(1)));
    QVERIFY2(text(0, Qt::DisplayRole).contains(QLatin1Char('>') + end + QLatin1Char('<')), qPrintable(end));
    QCOMPARE(text(0, Qt::ToolTipRole), path);
}

void SessionLogTest::copies()
{
    addMany(5);
    const auto copied = [this] {
        QTest::keySequence(view, QKeySequence::Copy);
        return QApplication::clipboard()->text();
    };
    QApplication::clipboard()->setText(path);
    QCOMPARE(copied(), path);
    for (int row : {3, 0, 1})
        view->selectionModel()->select(view->model()->index(row, 0), QItemSelectionModel::Select);
    QCOMPARE(copied(), (QStringList{text(0), text(1), text(3)}.join(QLatin1Char('\n'))));
    QTest::keySequence(view, QKeySequence::SelectAll);
    QCOMPARE(copied().count(QLatin1Char('\n')), 4);
}

void SessionLogTest::keys()
{
    addMany(1000);
    QVERIFY(view->uniformItemSizes());
    view->setCurrentIndex(view->model()->index(0, 0));
    const int page = view->viewport()->height() / rowRect(0).height();
    QVERIFY(page >= 5 && page <= 12);
    // Typing searches for nothing, not even for what every row starts with: that would render a million rows.
    const QPair<Qt::Key, int> steps[] = {{Qt::Key_Down, 1},       {Qt::Key_Up, 0},     {Qt::Key_Up, 0},
                                         {Qt::Key_End, 999},      {Qt::Key_Down, 999}, {Qt::Key_PageUp, 999 - page},
                                         {Qt::Key_PageDown, 999}, {Qt::Key_Home, 0},   {Qt::Key_Less, 0}};
    for (const auto& step : steps) {
        QTest::keyClick(view, step.first);
        QCOMPARE(view->currentIndex().row(), step.second);
        QVERIFY(view->viewport()->rect().contains(rowRect(step.second).center()));
    }
    const auto selected = [this] { return view->selectionModel()->selectedIndexes().size(); };
    QTest::keyClick(view, Qt::Key_Down, Qt::ShiftModifier);
    QCOMPARE(selected(), 2);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, rowRect(3).center());
    QCOMPARE(view->currentIndex().row(), 3);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::ShiftModifier, rowRect(5).center());
    QCOMPARE(selected(), 3);
}

void SessionLogTest::readersStayWhereTheyAre()
{
    addMany(200);
    const auto topPath = [this] { return view->indexAt(QPoint(5, 5)).data(Qt::ToolTipRole).toString(); };
    QCOMPARE(topPath(), QStringLiteral("199"));
    view->verticalScrollBar()->setValue(view->verticalScrollBar()->maximum() / 2);
    settle();
    const QString read = topPath();
    const QImage before = view->viewport()->grab().toImage();
    addMany(100);
    QCOMPARE(topPath(), read);
    QVERIFY(view->viewport()->grab().toImage() == before);

    view->scrollToTop();
    addMany(1);
    QCOMPARE(topPath(), QStringLiteral("0"));
    view->scrollTo(view->model()->index(150, 0), QAbstractItemView::PositionAtCenter);
    QCOMPARE(view->indexAt(view->viewport()->rect().center()).row(), 150);
    session->clearLog();
    settle();
    QVERIFY(!view->indexAt(QPoint(5, 5)).isValid());
}

void SessionLogTest::selectedRowsAreLegible()
{
    addMany(2);
    view->setCurrentIndex(view->model()->index(0, 0));
    const auto contains = [this](int row, const QColor& color) {
        const QImage image = view->viewport()->grab(rowRect(row)).toImage().convertToFormat(QImage::Format_RGB32);
        const auto* pixels = reinterpret_cast<const QRgb*>(image.constBits());
        return std::count(pixels, pixels + image.width() * image.height(), color.rgb()) > 0;
    };
    QVERIFY(contains(1, QColor(0x89C1FE)));
    QVERIFY(!contains(0, QColor(0x89C1FE)));
    for (QPalette::ColorRole role : {QPalette::HighlightedText, QPalette::Highlight})
        QVERIFY(contains(0, view->palette().color(QPalette::Active, role)));
}

void SessionLogTest::screenReaders()
{
    addMany(2);
    QAccessibleInterface* log = QAccessible::queryAccessibleInterface(view);
    QCOMPARE(log->role(), QAccessible::List);
    QCOMPARE(log->childCount(), 2);
    QVERIFY(!log->child(2));
    QAccessibleInterface* row = log->child(1);
    QCOMPARE(row->text(QAccessible::Name), text(1));
    QCOMPARE(row->role(), QAccessible::ListItem);
    QCOMPARE(row->parent(), log);
    QCOMPARE(log->childAt(row->rect().center().x(), row->rect().center().y()), row);
    // A row keeps its identity when others come.
    addMany(1);
    QCOMPARE(log->indexOfChild(row), 2);
    QCOMPARE(log->child(2), row);
    view->setCurrentIndex(view->model()->index(2, 0));
    QVERIFY(row->state().selected && !row->state().offscreen);
    session->clearLog();
    QCOMPARE(log->childCount(), 0);
    add(path);
    QCOMPARE(log->child(0)->text(QAccessible::Name), text(0));
}

void SessionLogTest::closedWithTheToolsArea()
{
    session->setLogExpanderEnabled(false);
    QVERIFY(!child(session, "fileTransferInfoPanelCheckBox").isEnabled());
    for (bool keep : {true, false}) {
        add(path);
        session->setKeepRemoteToolsPopup(keep);
        session->endRemoteToolsSession(QStringLiteral("t"));
        settle();
        QCOMPARE(view->model()->rowCount(), keep ? 1 : 0);
        QCOMPARE(view->isVisible(), keep);
    }
}

GUI_TEST_MAIN(SessionLogTest)
#include "tst_sessionlog.moc"
