#pragma once

#include "IBaseDialog.h"

#include <QDialog>
#include <QPoint>

#include <initializer_list>

QT_BEGIN_NAMESPACE
class QLabel;
class QLineEdit;
QT_END_NAMESPACE
class ElidedLabel;

/// A blank and the agent's name. The blank keeps the name off the logo that stands before it in a caption.
extern const QString captionPrefix;
/// A blank and the product's full name.
extern const QString productPrefix;

/// What all dialogs have in common: a frameless, translucent window in the middle of the primary screen that is moved
/// by dragging its surface, accepts on Return and Enter, ignores every other key, can be scaled, and starts afresh each
/// time the host shows it.
class BaseDialog : public QDialog, public virtual IBaseDialog {
    Q_OBJECT

public:
    explicit BaseDialog(QWidget* parent = nullptr);
    ~BaseDialog() override;

    void setModal(bool modal) override;
    void show() override;
    void hide() override;
    void done(int result) override;
    int exec() override;
    void setRatio(float ratio) override;
    void setVisible(bool visible) override;

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    /// While dragging, watches all mouse events of the program for the release that ends it.
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;

    /// Makes the window frameless and translucent and centres it at its present size.
    virtual void setupWindow();
    /// Centres the window on the primary screen, task bars left out.
    virtual void moveToScreenCenter();
    /// Shows the agent's name in a caption, with a tool tip when there is no room for all of it before @p titleLabel.
    void showCaptionPrefix(QLabel* prefixLabel, const QLabel* titleLabel = nullptr);
    /// Fills the labels of a caption, @p titleLabel where there is one, and the window title.
    virtual void setCaption(QLabel* prefixLabel, QLabel* titleLabel, const QString& title);
    /// Sets window title and tool tip.
    virtual void setTitle(const QString& title);

    /// Scales the window about its centre, and all widgets in it. setRatio() has checked @p ratio and calls this only
    /// when there is something to change.
    virtual void scaleBy(float ratio);
    /// How much larger the dialog is than its form has it.
    float fullRatio() const;
    /// Where the dialog's top-left corner goes when it is scaled about its centre.
    QPoint topLeftAtRatio(float ratio) const;
    /// Called before the host shows the dialog. Brings the top and left edges of a dialog that is larger than the
    /// screen onto it: the caption is there then, and by dragging all the rest can be reached.
    virtual void moveIntoReach();
    /// The widget that has the focus whenever the host shows the dialog. In a line edit all text is selected then. By
    /// default, and when that widget is disabled, the dialog itself: Return and Enter mean accept() there, and no
    /// button takes a key that the person was typing into another window.
    virtual QWidget* startWidget();
    /// The first of @p fields that is empty, @p otherwise when none is.
    static QLineEdit* firstEmpty(std::initializer_list<QLineEdit*> fields, QLineEdit* otherwise);

private:
    Q_DISABLE_COPY(BaseDialog)

    /// Texts do not grow exactly as their labels do: the agent's name may fit at one ratio and not at another.
    void updateNameToolTip();
    /// Qt lists a window that appears modal among those that block the others, and takes it off that list only when it
    /// is still modal as it goes. A modality that is set in between counts from the next time it appears.
    void keepShownModality();
    /// Brings focus, buttons and dragging back to where they were before the dialog was ever used.
    void startAfresh();

    /// Where in the dialog the mouse went down; (0, 0) while nothing is dragged.
    QPoint dragPosition;
    Qt::WindowModality shownModality = Qt::NonModal;
    float scaledSoFar = 1.0F;
    /// Shows the agent's name in the caption.
    ElidedLabel* captionName = nullptr;
};
