#include "window/FieldHelp.h"

#include "model/InstructionSet.h"
#include "model/StepDisplay.h"
#include "pins/PinEdits.h"
#include "window/Language.h"

#include <QRegularExpression>
#include <QWidget>

#include <optional>

namespace kestrel {

namespace {

// A control's meaning; the range is added from the box's own rule where it has one.
struct FieldText {
    const char* names; // a pattern of object names
    const char* text;
    std::optional<PinField> rule = std::nullopt;
};

const FieldText kFields[] = {
    // General settings
    {"TextGenDCCAddress", QT_TRANSLATE_NOOP("Lang", "The module's first DCC accessory address; the pins' "
                                                    "DCC addresses follow it. 0 to 8191.")},
    {"TextGenXDCCAddress", QT_TRANSLATE_NOOP("Lang", "The module's first eXtended DCC address; the pins' "
                                                     "eXtended DCC addresses follow it. 0 to 8191.")},
    {"OptGenDCC_PRP_\\d+",
     QT_TRANSLATE_NOOP("Lang", "How often the module repeats a DCC packet that it sends "
                               "on (the packet repeat period).")},
    {"ChkGenDCC_BPSI", QT_TRANSLATE_NOOP("Lang", "Inverts the state that a basic DCC accessory packet "
                                                 "switches: the packet for \"on\" switches off and the "
                                                 "other way round.")},
    {"ChkGenDCCAllow0", QT_TRANSLATE_NOOP("Lang", "Lets the module use DCC address 0; otherwise the "
                                                  "addresses start at 1.")},
    {"CheckGenKestrelNative", QT_TRANSLATE_NOOP("Lang", "The module takes messages of its own serial "
                                                        "protocol. Off while Lynx flex-addressing is on.")},
    {"CheckGenLynxaddr", QT_TRANSLATE_NOOP("Lang", "The module answers Lynx messages at the flex-address "
                                                   "below instead of its own address. For experienced "
                                                   "users only.")},
    {"TextGenXaddr", QT_TRANSLATE_NOOP("Lang", "The module's eXtended address on the serial bus: the "
                                               "address that the program reaches it by. 0 to 95 (1 to 96 "
                                               "when numbering starts at 1).")},
    {"CheckGenXGM_\\d+", QT_TRANSLATE_NOOP("Lang", "The eXtended group mask: the module also acts on "
                                                   "messages sent to each checked group.")},
    {"ChkGenHWCSink_\\d+", QT_TRANSLATE_NOOP("Lang", "This group of eight pins has sink drivers fitted "
                                                     "(outputs switch to ground).")},
    {"ChkGenHWCSource_\\d+", QT_TRANSLATE_NOOP("Lang", "This group of eight pins has source drivers fitted "
                                                       "(outputs switch to the supply).")},
    {"CheckLCGreen_\\d+",
     QT_TRANSLATE_NOOP("Lang", "The green LED flashes for each checked kind of traffic. "
                               "With none checked it flashes while the module is idle.")},
    {"CheckLCOrange_\\d+", QT_TRANSLATE_NOOP("Lang", "The orange LED flashes for each checked kind of "
                                                     "traffic. With none checked it flashes for every "
                                                     "message received.")},
    {"CheckGenSerialEnable", QT_TRANSLATE_NOOP("Lang", "Switches the module's own serial port on.")},
    {"ComboGenBaud", QT_TRANSLATE_NOOP("Lang", "The speed of the module's own serial port, in bits per "
                                               "second.")},
    {"OptionGenSerialDatabits_\\d+", QT_TRANSLATE_NOOP("Lang", "Data bits per character on the module's "
                                                               "own serial port.")},
    {"OptionGenSerialStop_\\d+", QT_TRANSLATE_NOOP("Lang", "Stop bits per character on the module's own "
                                                           "serial port.")},
    {"OptionGenSerialParity_\\d+", QT_TRANSLATE_NOOP("Lang", "The parity bit of the module's own serial "
                                                             "port.")},
    // The pin shown, on the pages that show one pin
    {"(Text|UpDown)(ECpin|PCFGPin)", QT_TRANSLATE_NOOP("Lang", "The pin shown; every page shows the same "
                                                               "pin.")},
    // Servo
    {"SliderServo", QT_TRANSLATE_NOOP("Lang", "Moves the servo at once: the position is sent as the "
                                              "slider moves.")},
    {"TextPosition", QT_TRANSLATE_NOOP("Lang", "The servo's position now; 0 is the midpoint."),
     PinField::TextPosition},
    {"TextSrvInitPos",
     QT_TRANSLATE_NOOP("Lang", "The position that the servo takes when the module "
                               "starts."),
     PinField::TextSrvInitPos},
    {"TextMidpoint",
     QT_TRANSLATE_NOOP("Lang", "Moves the servo's whole travel: the pulse that position "
                               "0 gives."),
     PinField::TextMidpoint},
    {"TextSrvAntiMass",
     QT_TRANSLATE_NOOP("Lang", "One over the mass that the servo moves: a higher value "
                               "speeds up and slows down more quickly."),
     PinField::TextSrvAntiMass},
    {"TextSrvFriction",
     QT_TRANSLATE_NOOP("Lang", "Damping of the movement: a higher value brakes harder "
                               "and swings less."),
     PinField::TextSrvFriction},
    {"TextSrvMaxSpd", QT_TRANSLATE_NOOP("Lang", "The highest speed of the servo."), PinField::TextSrvMaxSpd},
    {"TextSrvMaxAccel", QT_TRANSLATE_NOOP("Lang", "The highest acceleration of the servo."),
     PinField::TextSrvMaxAccel},
    {"TextBounceDown",
     QT_TRANSLATE_NOOP("Lang", "How far the servo bounces back at the lower end of its "
                               "travel; 0 is no bounce."),
     PinField::TextBounceDown},
    {"TextBounceDownFactor",
     QT_TRANSLATE_NOOP("Lang", "How much of each bounce at the lower end is left "
                               "for the next one."),
     PinField::TextBounceDownFactor},
    {"TextBounceUp",
     QT_TRANSLATE_NOOP("Lang", "How far the servo bounces back at the upper end of its "
                               "travel; 0 is no bounce."),
     PinField::TextBounceUp},
    {"TextBounceUpFactor",
     QT_TRANSLATE_NOOP("Lang", "How much of each bounce at the upper end is left "
                               "for the next one."),
     PinField::TextBounceUpFactor},
    {"OptionServoRange_\\d+",
     QT_TRANSLATE_NOOP("Lang", "The servo's range of travel, from 0 (narrowest) to 4 "
                               "(widest).")},
    {"ChkSrvAutoSuspend", QT_TRANSLATE_NOOP("Lang", "The module stops the servo's pulses once it has "
                                                    "reached its position.")},
    {"ChkSrvInitialized", QT_TRANSLATE_NOOP("Lang", "The module has set the servo up; shown as read, not "
                                                    "sent.")},
    // PWM
    {"SliderPWM", QT_TRANSLATE_NOOP("Lang", "Sets the output's level at once: the level is sent as the "
                                            "slider moves.")},
    {"TextPWMLevel", QT_TRANSLATE_NOOP("Lang", "The output's level now; 0 is off."), PinField::TextPWMLevel},
    {"TextPWMInitLevel",
     QT_TRANSLATE_NOOP("Lang", "The level that the output takes when the module "
                               "starts."),
     PinField::TextPWMInitLevel},
    {"TextPWMAccel", QT_TRANSLATE_NOOP("Lang", "How fast the level changes when the output switches."),
     PinField::TextPWMAccel},
    {"TextPWMOffLevel", QT_TRANSLATE_NOOP("Lang", "The level that \"off\" gives."),
     PinField::TextPWMOffLevel},
    {"TextPWMOnLevel", QT_TRANSLATE_NOOP("Lang", "The level that \"on\" gives."), PinField::TextPWMOnLevel},
    {"OptionPWMDriveMode_\\d+",
     QT_TRANSLATE_NOOP("Lang", "How the level maps to the output: in equal steps or "
                               "in steps that look equal to the eye.")},
    {"OptionPWMAccelMode_\\d+",
     QT_TRANSLATE_NOOP("Lang", "How the level changes over time: in equal steps or "
                               "in steps that look equal to the eye.")},
    {"CheckPWMInverted", QT_TRANSLATE_NOOP("Lang", "The output is on when its level is low.")},
    // Input
    {"TextInputDelay_0",
     QT_TRANSLATE_NOOP("Lang", "How long the input must stay on before the module "
                               "takes it as on (debounce)."),
     PinField::TextInputDelay0},
    {"TextInputDelay_1",
     QT_TRANSLATE_NOOP("Lang", "How long the input must stay off before the module "
                               "takes it as off (debounce)."),
     PinField::TextInputDelay1},
    {"CheckInputInvert", QT_TRANSLATE_NOOP("Lang", "The input counts as on when its contact is open.")},
};

QString rangeText(const QString& low, const QString& high)
{
    return Lang::tr("Range: %1 to %2.").arg(low, high);
}

// Which event input a control is about: the page counts them from 1, the event-pattern tool
// and the verification report from 0.
QString eventInputText(int input)
{
    return Lang::tr("Input %1 here is \"Event Input %2\" in the event-pattern tool of the \"Event Input\" "
                    "instruction, and Event-On(%2) and Event-Off(%2) in the verification report.")
        .arg(input + 1)
        .arg(input);
}

void explainEventInputs(QWidget* root)
{
    const QString on =
        Lang::tr("The action when the input switches on: the number of the aspect that this pin "
                 "takes, 0 to 11, or -1 for none.");
    const QString off =
        Lang::tr("The action when the input switches off: the number of the aspect that this pin "
                 "takes, 0 to 11, or -1 for none.");
    for (int i = 0; i < 4; ++i) {
        const QString input = eventInputText(i);
        const std::pair<QString, QString> fields[] = {
            {QString("LabelECinput_%1").arg(i), input},
            {QString("TextECon_%1").arg(i), on + "\n" + input},
            {QString("UpDownECon_%1").arg(i), on + "\n" + input},
            {QString("TextECoff_%1").arg(i), off + "\n" + input},
            {QString("UpDownECoff_%1").arg(i), off + "\n" + input},
            {QString("CheckInitEE_%1").arg(i),
             Lang::tr("Event-On of this input is enabled when the module starts.") + "\n" + input},
            {QString("CheckInitEE_%1").arg(i + 4),
             Lang::tr("Event-Off of this input is enabled when the module starts.") + "\n" + input},
            {QString("chkEvent_%1").arg(i),
             Lang::tr("\"Event Input %1\" is \"Input %2\" on the Event Control page.").arg(i).arg(i + 1)},
        };
        for (const auto& [name, text] : fields)
            if (auto* w = root->findChild<QWidget*>(name); w && w->toolTip().isEmpty())
                setTip(w, text);
    }
}

// What a step parameter does, by its caption; a few captions mean something else for some
// instructions.
QString parameterMeaning(int code, const std::string& caption)
{
    if (caption == "P.O.")
        return Lang::tr(
            "Pin offset: the pin that this step acts on, counted from this pin (0 is this pin, -1 the pin "
            "before it).");
    if (caption == "Asp#")
        return Lang::tr("The aspect to jump to.");
    if (caption == "Ins#")
        return Lang::tr("The step of that aspect to go on with (0 is its first step).");
    if (caption == "Type")
        return Lang::tr("Which of the two green-yellow-red sequences runs.");
    if (caption == "Byte" || caption == "Byte1")
        return Lang::tr("The byte that the module sends on its own serial port.");
    if (caption == "Byte2")
        return Lang::tr("The second byte that the module sends on its own serial port.");
    if (caption == "T(/60)")
        return code == 18 ? Lang::tr("The length of the pulse in sixtieths of a second (60 is one second).")
                          : Lang::tr("The time in sixtieths of a second (60 is one second).");
    if (caption == "Source")
        return Lang::tr("The pin whose output this pin copies (its number, not an offset).");
    if (caption == "Patt.")
        return Lang::tr(
            "Which outputs are on, one bit each from the pin at P.O. on (1 = +0, 2 = +1, 4 = +2 ...).");
    if (caption == "ETImap")
        return Lang::tr(
            "The event inputs and actions: bits 0 to 3 are \"Event Input 0\" to \"Event Input 3\" (Input 1 "
            "to Input 4 on the Event Control page); the bits above choose the On- and Off-Event actions.");
    if (caption == "Aspect")
        return Lang::tr("The aspect that is reported back.");
    if (caption == "MXpin")
        return Lang::tr("The pin that gets the pulse (its number, not an offset).");
    if (caption == "Level")
        return code == 18 ? Lang::tr("The level during the pulse.")
                          : Lang::tr("The output level: 0 is off, 31 is full.");
    if (caption == "Pos." || caption == "Pos")
        return Lang::tr("The servo position; 0 is the midpoint.");
    if (caption == "Accel")
        return Lang::tr("How fast the level changes; -1 is kept as 127.");
    if (caption == "Chance")
        return Lang::tr("The chance that the output is switched on: 0 never, 31 nearly always.");
    if (caption == "Time")
        return code == 97 || code == 99 || code == 101 || code == 103
                   ? Lang::tr(
                         "The longest wait, in units of the base; the step waits a random time up to it.")
                   : Lang::tr("How long the step waits, in units of the base.");
    if (caption == "Base")
        return Lang::tr("The unit of the time: 0 = 20 ms, 1 = 160 ms, 2 = 1.28 s, 3 = 10.24 s.");
    if (caption == "Value")
        return Lang::tr("The value that the output of the pin at P.O. is compared with.");
    return {};
}

// The help tool of a parameter, as the step row opens it on a double-click or F2.
bool hasHelpTool(const InstructionInfo& info, int parameter)
{
    return (info.HelpTool == 9 && parameter >= 2) ||
           (parameter == 1 && ((info.HelpTool >= 1 && info.HelpTool <= 7) || info.HelpTool == 16));
}

} // namespace

void setTip(QWidget* w, const QString& tip, const QString& description)
{
    w->setToolTip(tip);
    w->setAccessibleDescription(description.isEmpty() ? tip : tip + "\n" + description);
}

void explainFields(QWidget* root)
{
    for (const FieldText& field : kFields) {
        QString text = Lang::tr(field.text);
        if (field.rule) {
            const PinFieldRule rule = pinFieldRule(*field.rule);
            text += " " + rangeText(QString::number(rule.min), QString::number(rule.max));
        }
        const QRegularExpression names(QString("^(%1)$").arg(field.names));
        for (QWidget* w : root->findChildren<QWidget*>(names))
            if (w->toolTip().isEmpty())
                setTip(w, text);
    }
    explainEventInputs(root);
}

QString stepParameterTip(const StepRecord& step, int parameter, int currentPin, int numberingBase)
{
    const InstructionInfo& info = instructionInfo(step.Instruction);
    if (!info.used(parameter))
        return Lang::tr("Not used by this instruction.");
    // The bounds are what the box makes of values far out of range.
    const auto bound = [&](const char* far) {
        return acceptParameter(step, parameter, far, currentPin, numberingBase).text;
    };
    QString tip = parameterMeaning(step.Instruction, info.caption(parameter)) + "\n" +
                  rangeText(QString::fromStdString(bound("-99999")), QString::fromStdString(bound("99999")));
    if (hasHelpTool(info, parameter))
        tip += "\n" + Lang::tr("Double-click or F2 opens the help tool.");
    return tip;
}

} // namespace kestrel
