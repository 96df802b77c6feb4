#pragma once
#include "files/DeviceDefinitions.h"
#include "link/CorvidControl.h"
#include "ops/JobDispatcher.h"
#include "ops/Session.h"
#include "shell/PortRouter.h"
#include "shell/QtDialogs.h"

#include <QMainWindow>
#include <memory>

class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QDialog;
class QPushButton;
class QRadioButton;
class QSpinBox;
class QTabWidget;
class QTimer;

namespace kestrel {
class GeneralPage;
class EventPage;
class PinConfigPage;
}

namespace kestrel {

// The main window: the link area and the pages. Widgets carry the names the
// module's tools have always used (objectName = member name; control arrays are
// named Name_index).
class KestrelConfig : public QMainWindow {
    Q_OBJECT
public:
    // `dialogs` replaces the message boxes (tests record them instead); null = real boxes.
    explicit KestrelConfig(QWidget* parent = nullptr, UserDialogs* dialogs = nullptr);
    ~KestrelConfig() override;

    Session& session() { return *core; }

    // Link area
    QLabel* LabelPort;
    QComboBox* ComboPort;
    QPushButton* cmdRefreshComm;
    QGroupBox* FrameBitrate;
    QRadioButton* OptionBitRate[3];
    QLabel* LabelAddress;
    QLineEdit* TextAddress;
    QSpinBox* UpDownAddress;
    QCheckBox* CheckXaddress;
    QLabel* LabelXaddress;
    QLineEdit* txtXaddr;
    QSpinBox* UpDownXaddr;
    QCheckBox* CheckKestrelBD;
    QCheckBox* CheckCorvid;
    QCheckBox* CheckKLnumber;
    QLineEdit* TextResponse;
    QLabel* LabelAction;
    QTabWidget* tabs;

    // Whole-module buttons
    QPushButton* CommandReadAll;
    QPushButton* CommandWriteAll;
    QPushButton* CommandVerifyAll;
    QCheckBox* CheckWritePinConfig; // also send each pin's configuration to flash
    QPushButton* CommandSave;
    QPushButton* CommandLoad;
    QPushButton* cmdSetTM;

    // The Corvid log window
    QDialog* frmCorvidComm = nullptr;
    QPlainTextEdit* txtCorvidCommunication = nullptr;
    QPushButton* cmdClear = nullptr;

    // General page
    GeneralPage* generalPage;
    EventPage* eventPage;
    PinConfigPage* pinConfigPage;
    QPushButton* CommandGenVersion;
    QLabel* LabelGenVersionString;

    // Devices page
    QLineEdit* TextPAspOutput;
    QLineEdit* TextDevicePin;
    QLineEdit* TextDeviceDescription;
    QComboBox* cboDevice;
    QLabel* lblDDVersion;
    QPushButton* CommandReloadDD;
    QPushButton* CommandPAspPreLoad;
    QPushButton* CommandSaveDevice;
    DeviceList devices;

    // The verification report window
    QDialog* frmKestrelVerification = nullptr;
    QPlainTextEdit* txtVerification = nullptr;

    JobDispatcher jobs;
    QTimer* Timer1;

public slots:
    void ComboPort_Click();
    void cmdRefreshComm_Click();
    void OptionBitRate_Click(int index);
    void TextAddress_Click();
    void UpDownAddress_Change(int value);
    void txtXaddr_Click();
    void UpDownXaddr_Change(int value);
    void CheckXaddress_Click();
    void CheckKestrelBD_Click();
    void LabelPort_DblClick();
    void CommandGenVersion_Click();
    void CheckCorvid_Click();
    void CheckKLnumber_Click();
    void cmdSetTM_Click();
    void CommandLoad_Click();
    void TextPAspOutput_Click();
    void CommandPAspPreLoad_Click();
    void CommandSaveDevice_Click();
    void CommandReadAll_Click();
    void CommandWriteAll_Click();
    void CommandVerifyAll_Click();
    void Timer1_Timer();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildLinkArea(QWidget* host);
    QWidget* buildGeneralPage();
    QWidget* buildDevicesPage();
    void refreshDevices();
    void refreshLinkDisplays();
    void fillPortList();
    void addJobs();
    // Runs one job behind the progress dialog; a program fault is reported once.
    void runJob(const QString& title, const std::function<void()>& operation);
    void startJob(const char* name);
    void ensureVerificationWindow();
    void ensureCorvidWindow();

    QtDialogs boxes;
    std::unique_ptr<PortRouter> port;
    SystemClock clock;
    std::unique_ptr<Session> core;
    std::unique_ptr<CorvidControl> corvid;
    QGroupBox* linkFrame = nullptr; // the frame LabelPort's double-click shows and hides
    bool updating = false;
};

} // namespace kestrel
