#pragma once

class QCheckBox;
class QHBoxLayout;
class QPushButton;

namespace kestrel {

// The two rows of buttons under the link area, so that the window still fits a small
// screen: the whole module and its file, then the pins with whether each pin's
// configuration is written too. The window connects them and keeps them under these names.
struct BulkRows {
    BulkRows();

    QPushButton* CommandReadAll;
    QPushButton* CommandWriteAll;
    QPushButton* CommandVerifyAll;
    QPushButton* CommandWriteChanges;
    QPushButton* CommandCompare;
    QPushButton* CommandSave;
    QPushButton* CommandLoad;
    QPushButton* CommandReadAllPins;
    QPushButton* CommandWriteAllPins;
    QPushButton* CommandVerifyAllPins;
    QCheckBox* CheckWritePinConfig;
    QHBoxLayout* module; // the whole module and its file
    QHBoxLayout* pins;
};

} // namespace kestrel
