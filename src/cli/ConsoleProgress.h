#pragma once
#include "link/Progress.h"

namespace kestrel {

// A one-line counter on stderr, only when stderr is a terminal. Cancelled by SIGINT.
class ConsoleProgress : public Progress {
public:
    ConsoleProgress();
    ~ConsoleProgress() override;
    void step(int done, int total, const std::string& what) override;
    bool cancelled() override;
    void finish();

private:
    bool terminal;
    bool shown = false;
};

} // namespace kestrel
