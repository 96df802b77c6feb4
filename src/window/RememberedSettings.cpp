#include "window/RememberedSettings.h"

#include "base/Wire.h"

#include <QFileInfo>
#include <QSettings>

#include <algorithm>

namespace kestrel {

namespace {
constexpr int kTypedPorts = 8;
} // namespace

RememberedSettings RememberedSettings::load(int defaultBitRate)
{
    const QSettings s("Kestrel", "Kestrel Config");
    RememberedSettings r;
    r.geometry = s.value("window/geometry").toByteArray();
    r.port = s.value("link/port", "sim").toString();
    r.bitRate = std::clamp(s.value("link/bitRate", defaultBitRate).toInt(), 0, 2);
    r.numbering = s.value("link/numbering", 0).toInt() == 1 ? 1 : 0;
    r.address = std::clamp(s.value("link/address", 0).toInt(), 0, 15);
    r.extended = s.value("link/extended", false).toBool();
    r.extendedAddress = std::clamp(s.value("link/extendedAddress", 0).toInt(), 0, kExtendedAddressMax);
    r.writePinConfigurations = s.value("jobs/writePinConfigurations", true).toBool();
    r.folder = s.value("files/folder").toString();
    r.recent = s.value("files/recent").toStringList().mid(0, kRecentFiles);
    r.typedPorts = s.value("link/typedPorts").toStringList().mid(0, kTypedPorts);
    const QVariantMap layouts = s.value("layout/modules").toMap();
    for (auto at = layouts.begin(); at != layouts.end(); ++at)
        r.layouts[at.key()] = at.value().toStringList();
    return r;
}

void RememberedSettings::save() const
{
    QSettings s("Kestrel", "Kestrel Config");
    s.setValue("window/geometry", geometry);
    s.setValue("link/port", port);
    s.setValue("link/bitRate", bitRate);
    s.setValue("link/numbering", numbering);
    s.setValue("link/address", address);
    s.setValue("link/extended", extended);
    s.setValue("link/extendedAddress", extendedAddress);
    s.setValue("jobs/writePinConfigurations", writePinConfigurations);
    s.setValue("files/folder", folder);
    s.setValue("files/recent", recent);
    s.setValue("link/typedPorts", typedPorts);
    QVariantMap lists;
    for (auto at = layouts.begin(); at != layouts.end(); ++at)
        lists[at.key()] = at.value();
    s.setValue("layout/modules", lists);
}

void RememberedSettings::forget() { QSettings("Kestrel", "Kestrel Config").clear(); }

void RememberedSettings::remember(const QString& path)
{
    const QString full = QFileInfo(path).absoluteFilePath();
    recent.removeAll(full);
    recent.prepend(full);
    while (recent.size() > kRecentFiles)
        recent.removeLast();
}

void RememberedSettings::rememberPort(const QString& path)
{
    typedPorts.removeAll(path);
    typedPorts.prepend(path);
    while (typedPorts.size() > kTypedPorts)
        typedPorts.removeLast();
}

} // namespace kestrel
