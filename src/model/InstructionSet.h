#pragma once
#include "model/Configuration.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace kestrel {

constexpr int kInstructionCodes = 129; // codes 0..128; an empty Name is not an instruction

// One row of the instruction table.
struct InstructionInfo {
    std::int16_t Kind = 0; // group 0..5; the instruction lists are ordered by Kind, then code
    std::string Name;      // shown in the instruction list; empty = not an instruction
    bool FadeAllowed = false;
    bool Par0Used = false;
    bool Par1Used = false;
    bool Par2Used = false;
    bool Par3Used = false;
    std::string Par0Caption;
    std::string Par1Caption;
    std::string Par2Caption;
    std::string Par3Caption;
    std::int16_t Par1Min = 0; // range of Par1 as shown
    std::int16_t Par1Max = 0;
    std::int16_t HelpTool = 0;  // 0 none, 2..7 pattern tool, 9 time tool, 16 event-pattern tool
    std::int16_t Par1Shift = 0; // added to the stored Par1 for display

    bool used(int parameter) const;                  // parameter 0..3
    const std::string& caption(int parameter) const; // parameter 0..3
};

// The table of every instruction code, built once on first use and read-only afterwards.
class InstructionTable {
public:
    static const InstructionTable& instance();

    // Range-checked: a code outside 0..128 is a ProgramFault.
    const InstructionInfo& operator[](int code) const;

    // One item of an instruction list: the shown name and the code kept as its data.
    struct ListItem {
        std::string name;
        int code = 0;
    };
    // The instruction list of a step row: Kind 0..5, within a kind by ascending code.
    const std::vector<ListItem>& list() const { return items; }
    // The list position of the first item whose data is the code; 0 ("-") when none is.
    int listIndexOf(int code) const;

private:
    InstructionTable();
    std::array<InstructionInfo, kInstructionCodes> rows{};
    std::vector<ListItem> items;
};

// Shorthand for InstructionTable::instance()[code].
const InstructionInfo& instructionInfo(int code);

// What the step row shows after the step was rewritten from its table entry.
struct NormalisedStep {
    bool fadeVisible = false;
    std::string fadeCaption;             // "Fade", or "" while the fade box is hidden
    std::array<std::string, 4> headings; // Par0Caption..Par3Caption for the column headings
};

// Rewrites a step from its instruction's entry: no fade where fade is not allowed, and
// every unused parameter set to 0.
NormalisedStep normaliseStep(StepRecord& step);

} // namespace kestrel
