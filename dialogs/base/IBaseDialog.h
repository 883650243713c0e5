#pragma once

/// The operations that every dialog shares.
///
/// The host never creates or owns a dialog: it gets one from GuiInterface, keeps it as `I<Name>Dialog*` and gives it
/// back with the delete operation of the same family. All calls belong to the GUI thread.
///
/// A dialog never closes itself on a click: it emits `dialogEvent` and stays as it is until the host hides it, ends it
/// with done() or deletes it. The few that hide on a key or a close request say so in their interface.
///
/// This class is frozen: its virtual functions come first in the table of every dialog interface, so that one more
/// would shift all of theirs and break hosts that are already built.
class IBaseDialog {
public:
    /// Deleting a dialog directly is allowed, but the delete operation of GuiInterface is the usual way: it waits for
    /// the event loop and so is safe inside the dialog's own event handler.
    virtual ~IBaseDialog() = default;

    /// Makes the dialog block the host's other windows while it is shown (true) or not (false). Takes effect at the
    /// next show(). A blocked window answers nothing, also one that appears while a modal one is open, unless it is
    /// modal itself: then it comes before the other.
    virtual void setModal(bool modal) = 0;

    /// Shows the dialog and returns at once. The focus goes to where it starts, whatever was used the last time: on the
    /// harmless answer, or in the first empty field; where no field is empty, its text is selected.
    virtual void show() = 0;

    /// Hides the dialog. What was set and typed stays.
    virtual void hide() = 0;

    /// Hides the dialog, emits QDialog's `finished(result)` and makes a running exec() return @p result.
    virtual void done(int result) = 0;

    /// Shows the dialog modal and runs an event loop until the dialog is hidden or deleted, by the host or by a close
    /// request that hides it. Returns the result given to done(), 0 otherwise. Events alone do not end it. A dialog
    /// that is shown already appears anew, as it could not become modal otherwise; called again for a dialog that runs
    /// already, it returns -1 at once.
    virtual int exec() = 0;

    /// Scales the dialog about its centre, and all widgets in it, by @p ratio. 1.0 changes nothing. Ratios multiply:
    /// a second call scales what the first one left. A ratio that is not a positive finite number changes nothing; one
    /// that would make a side longer than 8192 pixels is lowered to what gives that length.
    /// GuiInterface::setRatio() does this for every dialog at its creation, so few hosts need this one.
    virtual void setRatio(float ratio) = 0;
};
