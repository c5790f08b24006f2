#pragma once

#include "golden/com_subject.h"
#include "support/picture_box.h"

#include <optional>

namespace golden {

/// The picture box or printer of a case, and what is drawn on it.
class ComSurface {
public:
    /// Nothing for a command that is none about drawing.
    std::optional<support::Failure> Do(const Step& step, const ComSubject& subject);
    /// The properties and methods of the control that were used since the last time, in the words of the cases; what goes to
    /// the device context is not seen.
    Lines TakeAccesses();

private:
    support::Failure Draw(const Step& step, const ComSubject& subject) const;
    support::Failure DrawElements(const Step& step, const ComSubject& subject) const;

    support::Canvas canvas_;
    support::Ref<support::PictureBox> box_;
    std::string failing_;
};

} // namespace golden
