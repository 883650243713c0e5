#include "GuiTest.h"

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

    Session* session = nullptr;
    QListView* view = nullptr;

    void add(const QString& object)
    {
        session->addLogEvent(noon, QStringLiteral("file"), QStringLiteral("file-upload"), object,
                             QStringLiteral("reply"));
    }
    void addMany(int count)
    {
        for (int i = 0; i < count; ++i)
            add(QString::number(i));
        settle();
    }
    QString text(int row, int role = plainTextRole) const
    {
        return view->model()->index(row, 0).data(role).toString();
    }
    QRect rowRect(int row) const
    {
        return view->visualRect(view->model()->index(row, 0));
    }
    /// What a part of the topmost row looks like, the part being in coordinates of the row.
    QImage picture(const QRect& part) const
    {
        settle();
        return view->viewport()->grab(part.translated(rowRect(0).topLeft())).toImage();
    }

private Q_SLOTS:
    void init()
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

    void rows()
    {
        const QString html =
            QStringLiteral("<p><span style=\" font-size:14px; color:#a9adb3;\">%1</span><span style=\" "
                           "font-size:14px; color:%2;\">%3 </span><span style=\" font-size:14px; "
                           "color:#f3f4f4;\">%4</span></p>");
        const char* const rows[][5] = {{"file", "file-upload", "reply", "File uploaded", "#89C1FE"},
                                       {"process", "file-download", "abort", "Download aborted", "#BCBCFA"},
                                       {"service", "dir-upload", "cancel", "Upload cancelled", "#C1C36D"},
                                       {"event", "dir-download", "error", "", "#6BC39A"},
                                       {"Process", "file-erase", "reply", "File deleted", "#89C1FE"},
                                       {"", "file-upload", "Reply", "file-upload", "#89C1FE"}};
        for (const auto& row : rows) {
            session->addLogEvent(noon, QLatin1String(row[0]), QLatin1String(row[1]), QStringLiteral("x"),
                                 QLatin1String(row[2]));
            QCOMPARE(text(0), QString(noonText + QLatin1String(row[3]) + QStringLiteral(" x")));
            QCOMPARE(text(0, Qt::DisplayRole),
                     html.arg(noonText, QLatin1String(row[4]), QLatin1String(row[3]), QStringLiteral("x")));
            session->clearLog();
        }
        session->addEmptyLogRow();
        QCOMPARE(text(0, Qt::DisplayRole),
                 html.arg(QStringLiteral(" "), QStringLiteral("#89C1FE"), QString(), QString()));
        QCOMPARE(view->model()->rowCount(), 1);
        // Nothing of cleared rows comes back where new ones take their place in memory.
        for (int i = 0; i < 300; ++i) {
            add(QString::number(i));
            QVERIFY(text(0, Qt::DisplayRole).contains(QStringLiteral(">%1<").arg(i)));
            if (i % 40 == 39)
                session->clearLog();
        }
    }

    void anyTextFits()
    {
        add(QStringLiteral("x"));
        const int height = rowRect(0).height();
        for (const QString& value :
             {QStringLiteral("<h1>&amp;%1\r\n\u202E</h1>"),
              QString(QString(1024 * 1024, QLatin1Char('w')) + QStringLiteral("end")), QString(40, QChar(0x30C6))}) {
            session->addLogEvent(std::numeric_limits<qint64>::min(), value, value, value, value);
            QVERIFY(value.size() < 4096 || text(0, Qt::DisplayRole).endsWith(QLatin1String("wend</span></p>")));
            const QRect row = rowRect(0);
            QCOMPARE(row.height(), height);
            QHelpEvent help(QEvent::ToolTip, row.center(), view->viewport()->mapToGlobal(row.center()));
            QCoreApplication::sendEvent(view->viewport(), &help);
            const QString toolTip = QToolTip::text();
            QVERIFY(!toolTip.contains(QLatin1String("<h1>")) && !toolTip.contains(QChar(0x202E)));
            QCOMPARE(toolTip.startsWith(QChar(0x2026)) && toolTip.endsWith(QLatin1String("wend")), value.size() > 4096);
            for (const QString& line : toolTip.split(QLatin1Char('\n')))
                QVERIFY(QFontMetrics(QToolTip::font()).horizontalAdvance(line)
                        < QGuiApplication::primaryScreen()->size().width());
        }
        QToolTip::hideText();
    }

    void drawing()
    {
        // Each text is drawn as the one beside it, but for its colour: blanks stay, first letters turn no row around,
        // and East Asian characters move nothing.
        add(QStringLiteral("x"));
        const QRect whole(0, 0, view->viewport()->width(), rowRect(0).height());
        const QRect start(0, 0, 150, whole.height());
        const QImage plain = picture(start);
        add(QString(QChar(0x30C6)));
        QCOMPARE(picture(start), plain);
        session->addLogEvent(noon, QString(), QString(QChar(0x05D0)), QString(QChar(0x05D0)), QString());
        QCOMPARE(picture(start), plain);
        add(QStringLiteral("a b"));
        const QImage oneBlank = picture(whole);
        add(QStringLiteral("a  b"));
        QVERIFY(picture(whole) != oneBlank);
        add(path);
        // What is shortened keeps its end.
        const QString end = QFontMetrics(view->font()).elidedText(path, Qt::ElideLeft, qMax(570 / 3, 178));
        QVERIFY(end.startsWith(QChar(0x2026)) && path.endsWith(end.mid(1)));
        QVERIFY2(text(0, Qt::DisplayRole).contains(QLatin1Char('>') + end + QLatin1Char('<')), qPrintable(end));
        // Rows that were drawn before are drawn anew, their paths shortened less.
        picture(whole);
        session->setRatio(2);
        const QImage old = picture(start);
        QVERIFY2(qAbs(rowRect(0).height() - 2 * whole.height()) <= 2, qPrintable(QString::number(rowRect(0).height())));
        add(QStringLiteral("fresh"));
        QCOMPARE(old, picture(start));
        add(path);
        for (int i = 0; i < 4; ++i) {
            picture(whole);
            session->setRatio(0.8F);
            add(path);
            QCOMPARE(text(1, Qt::DisplayRole), text(0, Qt::DisplayRole));
        }
    }

    void copies()
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
    }

    void keys()
    {
        addMany(1000);
        view->setCurrentIndex(view->model()->index(0, 0));
        const int page = view->viewport()->height() / rowRect(0).height();
        // Typing searches for nothing, not even for what every row starts with: that would render a million rows.
        const QPair<Qt::Key, int> steps[] = {{Qt::Key_Down, 1},  {Qt::Key_Up, 0},          {Qt::Key_Up, 0},
                                             {Qt::Key_End, 999}, {Qt::Key_Down, 999},      {Qt::Key_PageUp, 999 - page},
                                             {Qt::Key_Home, 0},  {Qt::Key_PageDown, page}, {Qt::Key_Home, 0},
                                             {Qt::Key_Less, 0}};
        for (const auto& step : steps) {
            QTest::keyClick(view, step.first);
            QCOMPARE(view->currentIndex().row(), step.second);
            QVERIFY(view->viewport()->rect().contains(rowRect(step.second).center()));
        }
    }

    void readersStayWhereTheyAre()
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
    }

    void screenReaders()
    {
        addMany(2);
        QAccessibleInterface* log = QAccessible::queryAccessibleInterface(view);
        QAccessibleInterface* row = log->child(1);
        QCOMPARE(row->text(QAccessible::Name), text(1));
        QCOMPARE(log->childAt(row->rect().center().x(), row->rect().center().y()), row);
        // A row keeps its identity when others come.
        addMany(1);
        QCOMPARE(log->indexOfChild(row), 2);
        QCOMPARE(log->child(2), row);
        view->setCurrentIndex(view->model()->index(2, 0));
        QVERIFY(row->state().selected && !row->state().offscreen && row->state().focused);
        QVERIFY(log->focusChild() == row && !log->child(0)->state().focused);
        session->clearLog();
        QCOMPARE(log->childCount(), 0);
        // What is read is what is seen, without the blanks of missing parts.
        session->addLogEvent(noon, QString(), QString(), QStringLiteral("a  b\u202E"), QString());
        QCOMPARE(log->child(0)->text(QAccessible::Name), QString(noonText + QStringLiteral("a  b\uFFFD")));
        session->addLogEvent(noon, QString(), QStringLiteral("act"), QString(), QString());
        QCOMPARE(log->child(0)->text(QAccessible::Name), QString(noonText + QStringLiteral("act")));
        // And nothing of cleared rows is left to mistake it for.
        for (int i = 0; i < 20; ++i) {
            session->clearLog();
            addMany(1);
            const QAccessible::Id rowId = QAccessible::uniqueId(log->child(0));
            QVERIFY(log->child(0) && log->child(0) == QAccessible::accessibleInterface(rowId));
        }
    }

    void closedWithTheToolsArea()
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
};

GUI_TEST_MAIN(SessionLogTest)
#include "tst_sessionlog.moc"
