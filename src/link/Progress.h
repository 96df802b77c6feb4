#pragma once
#include <string>

namespace kestrel {

// Progress of a long job. step() reports how far it got; exchanged() is called by
// the link after every exchange with the module, so a window can repaint; a job
// that is cancelled ends at its next exchange like a failed step.
class Progress {
public:
    virtual ~Progress() = default;
    virtual void step(int done, int total, const std::string& what) = 0;
    virtual void exchanged() {}
    virtual bool cancelled() = 0;
};

} // namespace kestrel
