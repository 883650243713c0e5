#include "GuiTest.h"

/// The tables of the host guide, read and compared with what the dialogs do.
class GuideTest : public GuiTest {
    Q_OBJECT

private Q_SLOTS:
    void keys_data()
    {
        rows({"dialog", "Return", "Escape", "close request", "×"});
    }

    void keys()
    {
        QFETCH(QString, dialog);
        const Family& family = dialogFamily(dialog);
        // What a new dialog does about one of them, in the words of the table.
        const auto answer = [&](QString action) {
            family.remove(gui(), QString());
            settle();
            IBaseDialog* const target = get(dialog);
            const QJsonObject values = family.values(*target);
            for (const QString& required :
                 {QStringLiteral("password"), QStringLiteral("subject"), QStringLiteral("issueDetails")})
                if (values.contains(required))
                    family.set(*target, required, QStringLiteral("x"));
            showActive(target);
            takeEvents();
            if (action == QStringLiteral("×")) {
                const QRegularExpression names(QStringLiteral("^(btnClose|closeButton)$"));
                const auto corner = window(target).findChildren<QAbstractButton*>(names);
                if (corner.isEmpty())
                    return QStringLiteral("none");
                action = corner.first()->objectName();
            }
            act(target, action);
            QStringList results = takeEvents();
            if (!window(target).isVisible())
                results << QStringLiteral("hides");
            return results.isEmpty() ? QStringLiteral("nothing") : results.join(QStringLiteral(", "));
        };
        for (const char* column : {"Return", "Escape", "close request", "×"})
            QTEST(answer(QString::fromUtf8(column).section(QLatin1Char(' '), 0, 0)), column);
        QTEST(answer(QStringLiteral("Enter")), "Return");
    }

    void actions_data()
    {
        rows({"action", "reply", "abort", "cancel", "error"});
    }

    void actions()
    {
        QFETCH(QString, action);
        auto* session = get<IRemoteConnectionDialog>();
        for (const char* status : {"reply", "abort", "cancel", "error"}) {
            session->addLogEvent(0, QString(), action, QString(), QLatin1String(status));
            const auto* log = child<QListView>(session, "logsListView").model();
            const QString text = log->index(0, 0).data(Qt::UserRole + 1).toString().mid(20).trimmed();
            QTEST(text.isEmpty() ? QStringLiteral("no words") : text, status);
        }
    }

private:
    /// One row of test data per row of the table that has these columns.
    static void rows(std::initializer_list<const char*> columns)
    {
        textColumns(columns);
        QFile guide(QStringLiteral(GUIDE));
        QVERIFY(guide.open(QIODevice::ReadOnly));
        QString header;
        for (const char* column : columns)
            header += QStringLiteral("| ") + QString::fromUtf8(column) + QLatin1Char(' ');
        const QString text = QString::fromUtf8(guide.readAll()).remove(QLatin1Char('`'));
        const QString table = text.section(header + QStringLiteral("|\n"), 1).section(QStringLiteral("\n\n"), 0, 0);
        QVERIFY2(!table.isEmpty(), qPrintable(header));
        for (const QString& line : table.split(QLatin1Char('\n')).mid(1)) {
            const QStringList cells = line.mid(2).chopped(2).split(QStringLiteral(" | "));
            QTestData& row = QTest::newRow(qPrintable(cells.first()));
            for (const QString& cell : cells)
                row << cell;
        }
    }
};

GUI_TEST_MAIN(GuideTest)
#include "tst_guide.moc"
