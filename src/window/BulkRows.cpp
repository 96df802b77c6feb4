#include "window/BulkRows.h"
#include "window/Widgets.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <initializer_list>

namespace kestrel {

BulkRows::BulkRows()
{
    CommandReadAll = named(new QPushButton("Read A&ll"), "CommandReadAll");
    CommandWriteAll = named(new QPushButton("&Write All"), "CommandWriteAll");
    CommandVerifyAll = named(new QPushButton("Verif&y All"), "CommandVerifyAll");
    CommandWriteChanges = named(new QPushButton("Write Chan&ges"), "CommandWriteChanges");
    CommandWriteChanges->setToolTip(
        "Writes only what differs from the module as it was last read, written or verified");
    CommandCompare = named(new QPushButton("Compare wi&th Module"), "CommandCompare");
    CommandCompare->setToolTip("Reads the module beside the configuration and lists every difference");
    CheckWritePinConfig = named(new QCheckBox("Write pin configurations too"), "CheckWritePinConfig");
    CheckWritePinConfig->setToolTip("Also writes each pin's servo, PWM or input parameters to flash");
    CheckWritePinConfig->setChecked(true); // so that what is written verifies
    CommandSave = named(new QPushButton("&Save File"), "CommandSave");
    CommandSave->setToolTip("Shift+Save File to save compact");
    CommandLoad = named(new QPushButton("L&oad File"), "CommandLoad");
    CommandReadAllPins = named(new QPushButton("Read All &Pins"), "CommandReadAllPins");
    CommandReadAllPins->setToolTip(
        "Reads the 32 pins from the module, without the general settings and events");
    CommandWriteAllPins = named(new QPushButton("Write All Pi&ns"), "CommandWriteAllPins");
    CommandWriteAllPins->setToolTip(
        "Writes the 32 pins to the module, without the general settings and events");
    CommandVerifyAllPins = named(new QPushButton("Ver&ify All Pins"), "CommandVerifyAllPins");
    CommandVerifyAllPins->setToolTip("Compares the 32 pins of the module with the configuration");
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
