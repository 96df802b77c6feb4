#pragma once

class QWidget;

namespace kestrel {

class KestrelConfig;

// The window's menu bar: File, Edit, Module, View and Help. Every entry that a button also
// offers clicks that button, so there is one path for each action; no entry that writes
// to the module has a shortcut.
class MainMenus {
public:
    static void build(KestrelConfig& window);
    // Help > About: the version and how the program was built.
    static void about(QWidget* parent);
};

} // namespace kestrel
