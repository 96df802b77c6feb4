#include "model/InstructionSet.h"
#include "base/Translatable.h"

#include "base/ProgramFault.h"

namespace kestrel {

bool InstructionInfo::used(int parameter) const
{
    checkIndex(parameter, 4, "step parameter");
    const bool flags[4] = {Par0Used, Par1Used, Par2Used, Par3Used};
    return flags[parameter];
}

const std::string& InstructionInfo::caption(int parameter) const
{
    checkIndex(parameter, 4, "step parameter");
    const std::string* captions[4] = {&Par0Caption, &Par1Caption, &Par2Caption, &Par3Caption};
    return *captions[parameter];
}

namespace {

struct Row {
    int kind;
    const char* name;
    bool fade;
    const char* used; // the used parameters as digits, e.g. "012"
    const char* c0;
    const char* c1;
    const char* c2;
    const char* c3;
    int min;
    int max;
    int helpTool;
    int shift;
};

InstructionInfo makeInfo(const Row& r)
{
    InstructionInfo info;
    info.Kind = static_cast<std::int16_t>(r.kind);
    info.Name = r.name;
    info.FadeAllowed = r.fade;
    for (const char* p = r.used; *p; ++p) {
        switch (*p) {
        case '0':
            info.Par0Used = true;
            break;
        case '1':
            info.Par1Used = true;
            break;
        case '2':
            info.Par2Used = true;
            break;
        case '3':
            info.Par3Used = true;
            break;
        default:
            throw ProgramFault("instruction row with a bad parameter flag");
        }
    }
    info.Par0Caption = r.c0;
    info.Par1Caption = r.c1;
    info.Par2Caption = r.c2;
    info.Par3Caption = r.c3;
    info.Par1Min = static_cast<std::int16_t>(r.min);
    info.Par1Max = static_cast<std::int16_t>(r.max);
    info.HelpTool = static_cast<std::int16_t>(r.helpTool);
    info.Par1Shift = static_cast<std::int16_t>(r.shift);
    return info;
}

} // namespace

InstructionTable::InstructionTable()
{
    auto set = [this](int code, const Row& r) {
        checkIndex(code, kInstructionCodes, "instruction code");
        rows[code] = makeInfo(r);
    };
    // Every code starts without a name; then the defined rows are filled.
    for (auto& r : rows)
        r = InstructionInfo{};

    set(0, {0, "-", false, "", "", "", "", "", 0, 0, 0, 0});
    set(1, {3, "Jump", false, "012", "P.O.", "Asp#", "Ins#", "", 0, 11, 0, 0});
    set(3, {4, "NS G->Y->R", true, "01", "P.O.", "Type", "", "", 0, 1, 0, 0});
    set(4, {5, "SendSerial 1", false, "1", "", "Byte", "", "", 0, 255, 0, 0});
    set(5, {5, "SendSerial 2", false, "12", "", "Byte1", "Byte2", "", 0, 255, 0, 0});
    set(6, {0, "Blink alt", true, "01", "P.O.", "T(/60)", "", "", 0, 127, 0, 0});
    set(7, {4, "Clone", true, "01", "P.O.", "Source", "", "", 0, 31, 0, 0});
    set(8, {0, "Off", true, "01", "P.O.", "T(/60)", "", "", 0, 127, 0, 0});
    set(9, {0, "On", true, "01", "P.O.", "T(/60)", "", "", 0, 127, 0, 0});
    set(10, {0, "Invert", true, "01", "P.O.", "T(/60)", "", "", 0, 127, 0, 0});
    set(11, {0, "Random", true, "01", "P.O.", "T(/60)", "", "", 0, 127, 0, 0});
    for (int n = 2; n <= 5; ++n) {
        const std::string name = "Multibit " + std::to_string(n);
        set(10 + n, {0, name.c_str(), true, "01", "P.O.", "Patt.", "", "", 0, 127, n, 0});
    }
    set(16, {3, "Event Input", false, "1", "", "ETImap", "", "", 0, 127, 16, 0});
    set(17, {5, "Feedback", false, "01", "P.O.", "Aspect", "", "", 0, 11, 0, 0});
    set(18, {5, "MXpulse", false, "012", "MXpin", "T(/60)", "Level", "", 0, 127, 0, 0});
    set(32, {0, "Multibit 6", true, "01", "P.O.", "Patt.", "", "", 0, 127, 6, 0});
    set(33, {0, "Multibit 7", true, "01", "P.O.", "Patt.", "", "", 0, 127, 7, 0});
    set(34, {0, "Multibit 6 AD", true, "01", "P.O.", "Patt.", "", "", 0, 127, 6, 0});
    set(35, {0, "Multibit 7 AD", true, "01", "P.O.", "Patt.", "", "", 0, 127, 7, 0});
    set(36, {0, "Multibit 6 ND", true, "01", "P.O.", "Patt.", "", "", 0, 127, 6, 0});
    set(37, {0, "Multibit 7 ND", true, "01", "P.O.", "Patt.", "", "", 0, 127, 7, 0});
    set(38, {1, "Set Level", true, "01", "P.O.", "Level", "", "", 0, 31, 0, 0});
    set(39, {2, "Set Servo", true, "01", "P.O.", "Pos.", "", "", 0, 127, 0, -64});
    for (int n = 2; n <= 7; ++n) {
        const std::string name = "Multiblink " + std::to_string(n);
        set(40 + n, {0, name.c_str(), true, "01", "P.O.", "T(/60)", "", "", 0, 127, 0, 0});
    }
    set(96, {1, "SetLevel & Wait", false, "0123", "Accel", "Level", "Time", "Base", 0, 31, 9, 0});
    set(97, {1, "SetLevel & WtRnd", false, "0123", "Accel", "Level", "Time", "Base", 0, 31, 9, 0});
    set(98, {1, "SetRnd & Wait", false, "0123", "Accel", "Chance", "Time", "Base", 0, 31, 9, 0});
    set(99, {1, "SetRnd & WtRnd", false, "0123", "Accel", "Chance", "Time", "Base", 0, 31, 9, 0});
    set(100, {2, "SetServo & Wait", false, "123", "", "Pos", "Time", "Base", 0, 127, 9, -64});
    set(101, {2, "SetServo & WtRnd", false, "123", "", "Pos", "Time", "Base", 0, 127, 9, -64});
    set(102, {3, "Wait", false, "23", "", "", "Time", "Base", 0, 0, 9, 0});
    set(103, {3, "Wait Random", false, "23", "", "", "Time", "Base", 0, 0, 9, 0});
    const char* ifNames[4] = {"If Equal", "If Less", "If Not Equal", "If Not Less"};
    for (int i = 0; i < 4; ++i)
        set(104 + i, {5, ifNames[i], false, "01", "P.O.", "Value", "", "", -64, 63, 0, 0});
    for (int n = 0; n <= 11; ++n) {
        const std::string name = "SetAspect " + std::to_string(n);
        // SetAspect 3 and 6 keep their wider (unused) Par1 range of 0..127 on purpose.
        const int max = (n == 3 || n == 6) ? 127 : 11;
        set(112 + n, {3, name.c_str(), false, "023", "P.O.", "", "Time", "Base", 0, max, 9, 0});
    }
    set(127, {2, "Suspend Servo", false, "023", "P.O.", "", "Time", "Base", 0, 0, 9, 0});

    for (int kind = 0; kind <= 5; ++kind)
        for (int code = 0; code < kInstructionCodes; ++code)
            if (!rows[code].Name.empty() && rows[code].Kind == kind)
                items.push_back({rows[code].Name, code});
}

const InstructionTable& InstructionTable::instance()
{
    static const InstructionTable table;
    return table;
}

const InstructionInfo& InstructionTable::operator[](int code) const
{
    checkIndex(code, kInstructionCodes, "instruction code");
    return rows[code];
}

int InstructionTable::listIndexOf(int code) const
{
    for (std::size_t i = 0; i < items.size(); ++i)
        if (items[i].code == code)
            return static_cast<int>(i);
    return 0;
}

const InstructionInfo& instructionInfo(int code) { return InstructionTable::instance()[code]; }

NormalisedStep normaliseStep(StepRecord& step)
{
    const InstructionInfo& info = instructionInfo(step.Instruction);
    NormalisedStep out;
    if (!info.FadeAllowed) {
        step.Fade = 0;
        out.fadeVisible = false;
        out.fadeCaption = "";
    } else {
        out.fadeVisible = true;
        out.fadeCaption = KC_TRANSLATABLE("StepTable", "Fade");
    }
    if (!info.Par0Used)
        step.Par0 = 0;
    if (!info.Par1Used)
        step.Par1 = 0;
    if (!info.Par2Used)
        step.Par2 = 0;
    if (!info.Par3Used)
        step.Par3 = 0;
    for (int i = 0; i < 4; ++i)
        out.headings[i] = info.caption(i);
    return out;
}

} // namespace kestrel
