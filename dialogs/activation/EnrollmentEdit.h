#pragma once

#include "LineEdit.h"

/// A field for a part of an enrollment link. Such parts are copied from e-mails: line breaks and zero-width characters
/// that come along do not stay, nor do blanks around what is pasted. A tab becomes a blank.
class EnrollmentEdit : public LineEdit {
    Q_OBJECT

public:
    using LineEdit::LineEdit;

protected:
    QString cleaned(const QString& text) const override;
};
