#pragma once

#include <QDateTime>
#include <QFrame>

QT_BEGIN_NAMESPACE
class QLabel;
class QPushButton;
QT_END_NAMESPACE

/// The strip in the session status window that stands for one remote-control session: its number, who is connected,
/// for how long, and a button to end it or one to close the strip.
class TakeoverPanel final : public QFrame {
    Q_OBJECT

public:
    explicit TakeoverPanel(QWidget* parent = nullptr);

    /// Without @p force the earliest start wins. A null time with @p force stops the clock.
    void setStartTime(const QDateTime& time, bool force);
    void setUsername(const QString& name);
    void updateElapsedTime();
    void setCloseButtonVisible(bool visible);
    void setEndButtonVisible(bool visible);

    /// Whose session it is, and of which kind.
    QString sessionName() const;
    /// Whether a start time is set.
    bool isRunning() const;

    /// Scales the panel; see scalePixels().
    void scaleBy(float ratio, float fullRatio);
    /// Makes Tab go from @p previous to the panel's buttons.
    void setTabOrderAfter(QWidget* previous);

    /// The next panel is number 1 again.
    static void resetSessionCounter();

Q_SIGNALS:
    void endRemoteControlSession();
    void closeRemoteControlPopup();

private:
    Q_DISABLE_COPY(TakeoverPanel)

    void loadForm();
    template <class Widget>
    Widget* part(const char* name) const;

    QLabel* sessionTypeLabel = nullptr;
    QLabel* username = nullptr;
    QLabel* timeElapsed = nullptr;
    QPushButton* btnCloseRemoteControlPopup = nullptr;
    QPushButton* btnEndRemoteControlSession = nullptr;
    QDateTime startTime;
    QString fullUsername;
};

/// Shows a remote person's name in @p label, elided to its maximum width; the full name is then the tool tip.
void showUserName(QLabel* label, const QString& name);
/// Tells screen readers which session a button belongs to, as several buttons of a window have the same text.
void nameSessionButton(QPushButton* button, const QString& action, const QString& sessionTitle,
                       const QString& userName);
/// Gives the focus to the window if @p part has it. To be called before a part is hidden, disabled or removed: Qt would
/// give the focus to the next widget, perhaps another session's button, and the next key would press that.
void takeFocusFrom(QWidget* part);
