#pragma once

#include "DialogCatalogue.h"
#include "EventReceiver.h"

#include <QDir>
#include <QObject>
#include <QPointer>
#include <QQueue>
#include <QSet>
#include <QTimer>
#include <QWidget>

class GuiInterface;

/// Plays a script of JSON Lines: drives dialogs through their interfaces as an agent does and reports their events.
///
/// One command is played per turn of the event loop, so that deletions, timers and the person get their turn too.
/// The commands are described in docs/host-scripts.md.
class ScriptPlayer : public QObject {
    Q_OBJECT

public:
    enum class Mode {
        Unattended, ///< Clicks, keys and limits are played; pauses are skipped.
        Attended,   ///< A person answers: clicks, keys and expectations are skipped, waiting has no limit, pauses are
                    ///< kept. The story ends when the person answers otherwise or closes the dialog waited for.
    };

    ScriptPlayer(GuiInterface& gui, Mode mode, const QDir& pictureDirectory, QObject* parent = nullptr);
    /// Deletes the dialogs that the script left.
    ~ScriptPlayer() override;

    /// Adds the next line of the script. A blank line is skipped.
    void addLine(const QByteArray& line);
    /// No more lines will come: finished() is emitted when the last one was played.
    void endInput();

    /// How many lines were wrong or failed so far.
    int errorCount() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// Something to print: an event, a result or a picture.
    void output(const QJsonObject& object);
    /// A line that is wrong or failed.
    void error(int lineNumber, const QString& message);
    void finished();

private:
    struct Line {
        int number = 0;
        QByteArray text;
    };
    /// One dialog that the script got.
    struct Instance {
        const Family* family = nullptr;
        QString id;
        IBaseDialog* dialog = nullptr;
        QPointer<QWidget> window;
    };
    struct Expectation {
        QString dialog;
        QString id;
        int event = -1;
        QString eventName;
    };

    void scheduleNext();
    void resume();
    void playNext();
    void play(const QByteArray& text);
    void fail(const QString& message);

    Instance& instance(const QJsonObject& command);
    QWidget& childWidget(const QJsonObject& command);

    void get(const QJsonObject& command);
    void set(const QJsonObject& command);
    void call(const QJsonObject& command);
    void log(const QJsonObject& command);
    void expect(const QJsonObject& command);
    void show(const QJsonObject& command);
    void hide(const QJsonObject& command);
    void exec(const QJsonObject& command);
    void done(const QJsonObject& command);
    void modal(const QJsonObject& command);
    void scale(const QJsonObject& command);
    void remove(const QJsonObject& command);
    void removeAll(const QJsonObject& command);
    void ratio(const QJsonObject& command);
    void click(const QJsonObject& command);
    void type(const QJsonObject& command);
    void hover(const QJsonObject& command);
    void press(const QJsonObject& command);
    void focus(const QJsonObject& command);
    void clipboard(const QJsonObject& command);
    void wait(const QJsonObject& command);
    void pause(const QJsonObject& command);
    void picture(const QJsonObject& command);

    void onEvent(const DialogEvent& event);
    void lookForAnswerLater();
    /// Goes on when what a "wait" waits for has come, or will not come any more.
    void lookForAnswer();
    bool takeExpectedEvent();
    bool isAnsweredOtherwise() const;
    void onWaitedTooLong();

    struct Command {
        void (ScriptPlayer::*play)(const QJsonObject&) = nullptr;
        QSet<QString> keys;
    };
    static const QHash<QString, Command>& commands();

    GuiInterface& gui;
    const Mode mode;
    const QDir pictureDirectory;
    EventReceiver receiver;
    QVector<Instance> instances;

    QQueue<Line> lines;
    int lastLineNumber = 0;
    int currentLineNumber = 0;
    bool inputEnded = false;
    /// Whether the next line's turn is scheduled, or a wait holds it up.
    bool playing = false;
    bool storyOver = false;
    int errors = 0;

    /// Events that no "wait" has asked for yet.
    QVector<DialogEvent> unconsumedEvents;
    bool waiting = false;
    Expectation expected;
    QTimer limit;
};
