#include "window/WindowSettings.h"
#include "window/Language.h"

#include "window/FileActions.h"
#include "window/KestrelConfig.h"
#include "window/LinkArea.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QRadioButton>
#include <QScreen>
#include <QScrollArea>
#include <QTabWidget>
#include <algorithm>

namespace kestrel {

void WindowSettings::load(KestrelConfig& w)
{
    RememberedSettings& kept = w.kept;
    Guard& guard = *w.guard;
    auto& lc = w.core->linkControl;
    auto& link = w.core->link.settings;
    kept = RememberedSettings::load(lc.OptionBitRate);
    if (!w.restoreGeometry(kept.geometry))
        firstSize(w);
    guard([&] { lc.OptionBitRate_Click(kept.bitRate); });
    w.OptionBitRate[kept.bitRate]->setChecked(true);
    if (kept.numbering == 1) {
        w.CheckKLnumber->setChecked(true);
        w.CheckKLnumber_Click();
    }
    link.TargetAddress = kept.address;
    link.TargetXAddress = kept.extendedAddress;
    if (kept.extended) // asked about again, as when it was set
        guard([&] { lc.CheckXaddress_Click(true); });
    w.CheckWritePinConfig->setChecked(kept.writePinConfigurations);
    w.boxes.setFolder(kept.folder);
    kept.recent.erase(std::remove_if(kept.recent.begin(), kept.recent.end(), FileActions::inBackups),
                      kept.recent.end());
    w.linkArea->fillPortList();
    w.files->showRecent();
    w.refreshLinkDisplays();
    // The last port (or, on a first start, the simulated module), shown but not yet opened.
    w.ComboPort->setEditText(kept.port);
    w.ComboPort->setToolTip(
        Lang::tr("The serial port; \"sim\" is a simulated layout built into the program, "
                 "\"sim (Corvid)\" the same behind a simulated Corvid system. Return or a "
                 "choice from the list opens it."));
}

void WindowSettings::firstSize(KestrelConfig& w)
{
    // Each page scrolls inside its own area; the whole layout is the window with the
    // largest page's content shown without scrolling.
    QSize content;
    for (const QScrollArea* area : w.tabs->findChildren<QScrollArea*>())
        if (area->widget())
            content = content.expandedTo(area->widget()->sizeHint());
    QSize whole = w.sizeHint();
    const QSize page = w.tabs->currentWidget() ? w.tabs->currentWidget()->sizeHint() : QSize();
    whole.rwidth() = std::max(whole.width(), content.width() + whole.width() - page.width() + 40);
    whole.rheight() += std::max(0, content.height() - page.height()) + 40;
    const QScreen* screen = QApplication::primaryScreen();
    const QSize room =
        screen ? screen->availableSize() - (w.frameGeometry().size() - w.geometry().size()) : whole;
    w.resize(whole.boundedTo(room));
}

void WindowSettings::save(KestrelConfig& w)
{
    if (w.forgetSettings)
        return;
    RememberedSettings& kept = w.kept;
    const auto& lc = w.core->linkControl;
    const auto& link = w.core->link.settings;
    kept.geometry = w.saveGeometry();
    kept.port =
        lc.ComboPortText.empty() ? w.ComboPort->currentText() : QString::fromStdString(lc.ComboPortText);
    kept.bitRate = lc.OptionBitRate;
    kept.numbering = w.core->config.NumberingBase;
    kept.address = link.TargetAddress;
    kept.extended = link.CheckXaddress;
    kept.extendedAddress = link.TargetXAddress;
    kept.writePinConfigurations = w.CheckWritePinConfig->isChecked();
    kept.folder = w.boxes.folder();
    kept.save();
}

} // namespace kestrel
