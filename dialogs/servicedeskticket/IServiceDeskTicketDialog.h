#pragma once

#include "IBaseDialog.h"

#include <QString>
#include <QStringList>

/// The form in which the person files a service-desk ticket.
///
/// Fill the lists and limits before show(); read the values on evSubmit and send the ticket. What was typed stays
/// until the host deletes the dialog, so a failed submission loses nothing. What the host sets through this interface
/// does not count as an edit of the person.
///
/// Signal: `dialogEvent(IServiceDeskTicketDialog* pSender, IServiceDeskTicketDialog::TEvent eventType)`
class IServiceDeskTicketDialog : public virtual IBaseDialog {
public:
    enum TEvent {
        evCancel = 0, ///< Cancel, Escape, the close button or a close request; nothing was edited, or the person
                      ///< confirmed to discard it. Hiding the form takes that question back, and nothing is reported.
        evSubmit = 1, ///< Submitted; subject and details are not empty and keep their limits. By Return or Enter the
                      ///< form has hidden itself; show() brings it back as it was.
    };

    virtual QString getSubject() const = 0;
    /// Sets the subject; what exceeds the limit is cut.
    virtual void setSubject(const QString& subject) = 0;

    /// The index of the department chosen, -1 while the list is empty.
    virtual int getDepartmentIndex() const = 0;
    virtual QString getDepartment() const = 0;
    /// Chooses a department by its text; one that is not in the list changes nothing.
    virtual void setDepartment(const QString& department) = 0;
    /// Replaces the list and chooses its first entry. An empty list empties it.
    virtual void setDepartments(const QStringList& departments) = 0;

    /// The index of the priority chosen, -1 while the list is empty.
    virtual int getPriorityIndex() const = 0;
    virtual QString getPriority() const = 0;
    /// Chooses a priority by its text; one that is not in the list changes nothing.
    virtual void setPriority(const QString& priority) = 0;
    /// Replaces the list and chooses its first entry. An empty list empties it.
    virtual void setPriorities(const QStringList& priorities) = 0;

    /// The issue description as plain text.
    virtual QString getIssueDetails() const = 0;
    /// Sets the description, shown as it is and never taken for markup; what exceeds the limit is cut.
    virtual void setIssueDetails(const QString& details) = 0;

    virtual bool isIncludeDeviceData() const = 0;
    virtual void setIncludeDeviceData(bool include) = 0;

    /// The longest subject in UTF-16 units; 32767, the line edit's own maximum, while no limit is set.
    virtual int getSubjectMaxLength() const = 0;
    /// Limits the subject and names the limit in the empty field. 0 or a negative number lifts the limit. A subject
    /// that is longer already is cut at once.
    virtual void setSubjectMaxLength(int length) = 0;

    /// The longest description in UTF-16 units as it was set; 0 at first, which means no limit.
    virtual int getIssueDetailsMaxLength() const = 0;
    /// Limits the description and names the limit in the empty field. 0 or a negative number lifts the limit. A
    /// description that is longer already stays, cannot be submitted, and is cut with the next edit.
    virtual void setIssueDetailsMaxLength(int length) = 0;
};
