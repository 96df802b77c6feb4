#include "window/BulkRows.h"
#include "window/Language.h"
#include "window/Widgets.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <initializer_list>

namespace kestrel {

BulkRows::BulkRows()
{
    CommandReadAll = named(new QPushButton(Lang::tr("Read A&ll")), "CommandReadAll");
    CommandWriteAll = named(new QPushButton(Lang::tr("&Write All")), "CommandWriteAll");
    CommandVerifyAll = named(new QPushButton(Lang::tr("Verif&y All")), "CommandVerifyAll");
    CommandWriteChanges = named(new QPushButton(Lang::tr("Write Chan&ges")), "CommandWriteChanges");
    CommandWriteChanges->setToolTip(
        Lang::tr("Writes only what differs from the module as it was last read, written or verified"));
    CommandCompare = named(new QPushButton(Lang::tr("Compare wi&th Module")), "CommandCompare");
    CommandCompare->setToolTip(
        Lang::tr("Reads the module beside the configuration and lists every difference"));
    CheckWritePinConfig =
        named(new QCheckBox(Lang::tr("Write pin configurations too")), "CheckWritePinConfig");
    CheckWritePinConfig->setToolTip(
        Lang::tr("Also writes each pin's servo, PWM or input parameters to flash"));
    CheckWritePinConfig->setChecked(true); // so that what is written verifies
    CommandSave = named(new QPushButton(Lang::tr("&Save File")), "CommandSave");
    CommandSave->setToolTip(Lang::tr("Shift+Save File to save compact"));
    CommandLoad = named(new QPushButton(Lang::tr("L&oad File")), "CommandLoad");
    CommandReadAllPins = named(new QPushButton(Lang::tr("Read All &Pins")), "CommandReadAllPins");
    CommandReadAllPins->setToolTip(
        Lang::tr("Reads the 32 pins from the module, without the general settings and events"));
    CommandWriteAllPins = named(new QPushButton(Lang::tr("Write All Pi&ns")), "CommandWriteAllPins");
    CommandWriteAllPins->setToolTip(
        Lang::tr("Writes the 32 pins to the module, without the general settings and events"));
    CommandVerifyAllPins = named(new QPushButton(Lang::tr("Ver&ify All Pins")), "CommandVerifyAllPins");
    CommandVerifyAllPins->setToolTip(Lang::tr("Compares the 32 pins of the module with the configuration"));
    module = new QHBoxLayout;
    for (QWidget* w :
         std::initializer_list<QWidget*>{CommandReadAll, CommandWriteAll, CommandWriteChanges,
                                         CommandVerifyAll, CommandCompare, CommandSave, CommandLoad})
        module->addWidget(w);
    pins = new QHBoxLayout;
    for (QWidget* w : std::initializer_list<QWidget*>{CommandReadAllPins, CommandWriteAllPins,
                                                      CommandVerifyAllPins, CheckWritePinConfig})
        pins->addWidget(w);
    pins->addStretch();
    module->addStretch();
}

} // namespace kestrel
