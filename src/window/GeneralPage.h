#pragma once
#include "session/Session.h"
#include "window/Bindings.h"
#include "window/Guard.h"
#include "window/WidgetsFwd.h"

#include <QWidget>
#include <array>
#include <memory>

namespace kestrel {

// The General page of the main window: the module-wide settings (ID string, DCC,
// serial addressing, output drivers, LED functions, the module's own serial port,
// erase). Every control shows one field of session.general and carries that field's
// name as its objectName (control arrays: Name_index).
//
// The page does not hook the session's observers: the window calls refresh() when
// something else changed session.general (a job, Load File, the numbering base).
class GeneralPage : public QWidget {
    Q_OBJECT
public:
    // `guard` is the window's; a page on its own keeps one of its own.
    explicit GeneralPage(Session& session, Guard* guard = nullptr, QWidget* parent = nullptr);

    // Shows every field of session.general in its control (a typed entry not yet taken
    // is taken first). The eXtended address and flex-address boxes are shown from
    // ExtendedAddress and LynxFlexAddress with the current numbering base.
    void refresh();
    // Takes a typed entry that editing has not yet finished. Every other control is
    // taken the moment it changes. A typed eXtended address or flex-address is clamped
    // (0..95, 0..127 after the base is taken off; the flex address is shown times 4), a
    // DCC address to 0..8191, and written back.
    void commit();

    // Identity and version
    QPushButton* CommandGenVersion;
    QLabel* LabelGenVersionString;
    QLineEdit* TextGenIDString;
    QPushButton* CommandGenIDRead;
    QPushButton* CommandGenIDWrite;

    // DCC
    QLineEdit* TextGenDCCAddress;
    QLineEdit* TextGenXDCCAddress;
    std::array<QRadioButton*, 4> OptGenDCC_PRP;
    QCheckBox* ChkGenDCC_BPSI;
    QCheckBox* ChkGenDCCAllow0;
    QPushButton* CommandGenDCCRead;
    QPushButton* CommandGenDCCWrite;

    // Serial addressing
    QCheckBox* CheckGenKestrelNative;
    QCheckBox* CheckGenLynxaddr;
    QLabel* LabelGenXA_4;
    QLineEdit* TextGenLynxaddr;
    QSpinBox* UpDownGenLynxaddr;
    QLineEdit* TextGenXaddr;
    std::array<QCheckBox*, 16> CheckGenXGM;
    QPushButton* CommandGenAddrRead;
    QPushButton* CommandGenAddrWrite;

    // Hardware configuration
    QLabel* LabelGenHWCPin;
    std::array<QCheckBox*, 4> ChkGenHWCSink;
    std::array<QCheckBox*, 4> ChkGenHWCSource;
    QPushButton* CommandGenHWCRead;
    QPushButton* CommandGenHWCWrite;

    // LED control
    std::array<QCheckBox*, 8> CheckLCGreen;
    std::array<QCheckBox*, 8> CheckLCOrange;
    QPushButton* CommandLCRead;
    QPushButton* CommandLCWrite;

    // The module's own serial port
    QCheckBox* CheckGenSerialEnable;
    QComboBox* ComboGenBaud;
    std::array<QRadioButton*, 2> OptionGenSerialDatabits;
    std::array<QRadioButton*, 2> OptionGenSerialStop;
    std::array<QRadioButton*, 4> OptionGenSerialParity; // indices 0, 2, 3; element 1 stays null
    QPushButton* CommandGenSerialRead;
    QPushButton* CommandGenSerialWrite;

    QPushButton* CommandGenEraseFlash;

public slots:
    // Each button: commit, run the procedure, refresh. The result is the procedure's.
    bool CommandGenVersion_Click();
    bool CommandGenIDRead_Click();
    bool CommandGenIDWrite_Click();
    bool CommandGenDCCRead_Click();
    bool CommandGenDCCWrite_Click();
    bool CommandGenAddrRead_Click();
    bool CommandGenAddrWrite_Click();
    bool CommandGenHWCRead_Click();
    bool CommandGenHWCWrite_Click();
    bool CommandLCRead_Click();
    bool CommandLCWrite_Click();
    bool CommandGenSerialRead_Click();
    bool CommandGenSerialWrite_Click();
    bool CommandGenEraseFlash_Click();

private:
    QGroupBox* buildIdentity();
    QGroupBox* buildDcc();
    QGroupBox* buildAddressing();
    QGroupBox* buildHardware();
    QGroupBox* buildLeds();
    QGroupBox* buildSerialPort();
    QGroupBox* buildErase();
    // Puts the driver check boxes under the pin ranges of the legend.
    void placeHardwareBoxes();
    template <typename Procedure> bool run(Procedure procedure);
    void bind();
    void cutIDString(); // a longer ID is cut to what the module stores, and the user told

    Session& session;
    std::unique_ptr<Guard> ownGuard;
    Guard& guard;
    Bindings bindings;
    QButtonGroup* prpGroup;
    QButtonGroup* databitsGroup;
    QButtonGroup* stopGroup;
    QButtonGroup* parityGroup;
    QWidget* hardwareArea = nullptr;
    std::array<QLabel*, 2> driverCaptions{};
};

} // namespace kestrel
