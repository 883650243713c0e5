#include "GuiTest.h"

#include <QAbstractButton>
#include <QFile>
#include <QListView>

/// The tables of the host guide, read and compared with what the dialogs do.
class GuideTest : public GuiTest {
    Q_OBJECT

private Q_SLOTS:
    void keys_data();
    void keys();
    void actions_data();
    void actions();

private:
    static void rows(std::initializer_list<const char*> columns);
};

/// One row of test data per row of the table that has these columns.
void GuideTest::rows(std::initializer_list<const char*> columns)
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

void GuideTest::keys_data()
{
    rows({"dialog", "Return", "Escape", "close request", "×"});
}

void GuideTest::keys()
{
    QFETCH(QString, dialog);
    // What the dialog does about one of them, in the words of the table.
    const auto answer = [&](const QString& action) {
        IBaseDialog* const target = get(dialog);
        for (const char* required : {"password", "subject", "issueDetails"}) {
            const Family& family = dialogFamily(dialog);
            if (family.values(*target).contains(QLatin1String(required)))
                family.set(*target, QLatin1String(required), QStringLiteral("x"));
        }
        showActive(target);
        takeEvents();
        QString button = action;
        if (action == QStringLiteral("×")) {
            const auto corner = window(target).findChildren<QAbstractButton*>(
                QRegularExpression(QStringLiteral("^(btnClose|closeButton)$")));
            button = corner.isEmpty() ? QString() : corner.first()->objectName();
        }
        QStringList results;
        if (button.isEmpty()) {
            results << QStringLiteral("none");
        } else {
            act(target, button);
            results << takeEvents();
            if (!window(target).isVisible())
                results << QStringLiteral("hides");
            if (results.isEmpty())
                results << QStringLiteral("nothing");
        }
        dialogFamily(dialog).remove(gui(), QString());
        settle();
        return results.join(QStringLiteral(", "));
    };
    QTEST(answer(QStringLiteral("Return")), "Return");
    QTEST(answer(QStringLiteral("Enter")), "Return");
    QTEST(answer(QStringLiteral("Escape")), "Escape");
    QTEST(answer(QStringLiteral("close")), "close request");
    QTEST(answer(QStringLiteral("×")), "×");
}

void GuideTest::actions_data()
{
    rows({"action", "reply", "abort", "cancel", "error"});
}

void GuideTest::actions()
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

GUI_TEST_MAIN(GuideTest)
#include "tst_guide.moc"
