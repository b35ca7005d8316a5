// A form that stays open beside the child windows.
#pragma once

namespace varnholt {

// The main window brings it to the state of the logic whenever it does so itself: language, what is
// enabled, where the focus is to go.
class Begleiter {
public:
    virtual ~Begleiter()      = default;
    virtual void Nachziehen() = 0;
};

} // namespace varnholt
