#pragma once

namespace kestrel {

class KestrelConfig;

// What the window remembers between runs (window/RememberedSettings): the port, bit rate,
// module and eXtended address, numbering, the window's geometry, the last folder and the
// last files. Taken at the end of the window's construction, kept when it closes.
class WindowSettings {
public:
    static void load(KestrelConfig& window);
    static void save(KestrelConfig& window);

private:
    // A first start: as large as the screen allows, up to what shows every page whole.
    static void firstSize(KestrelConfig& window);
};

} // namespace kestrel
