#pragma once
#include "link/UserDialogs.h"

class QWidget;

namespace kestrel {

// Message boxes and file dialogs of the window. Texts are single-byte (Latin-1).
class QtDialogs : public UserDialogs {
public:
    explicit QtDialogs(QWidget* parent = nullptr) : parent(parent) {}
    void setParent(QWidget* p) { parent = p; }
    void message(const std::string& text, Icon icon) override;
    Answer ask(const std::string& text, Buttons buttons, Icon icon) override;
    std::string openFileName(const std::string& title, const std::string& filter, const std::string& defaultName) override;
    std::string saveFileName(const std::string& title, const std::string& filter, const std::string& defaultName) override;

private:
    QWidget* parent;
};

} // namespace kestrel
