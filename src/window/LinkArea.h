#pragma once
#include "link/CorvidControl.h"
#include "session/Session.h"
#include "window/Guard.h"
#include "window/RememberedSettings.h"
#include "window/WidgetsFwd.h"

#include <QGroupBox>
#include <functional>

namespace kestrel {

// The link area of the main window ("Communication"): the port, bit rate, module and
// eXtended address, the bidirectional and Corvid switches, the numbering and the last raw
// reply. Its handlers run inside the window's guard; what they change is the session's.
class LinkArea : public QGroupBox {
    Q_OBJECT
public:
    LinkArea(Session& session, CorvidControl& corvid, Guard& guard, RememberedSettings& kept);

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
    QPushButton* cmdSetTM;

    // Something the window shows beside the area changed (the port's state in the status bar).
    std::function<void()> onChanged;
    // "Start numbering at 1" was clicked: every page's numbers move.
    std::function<void(bool fromOne)> onNumbering;

    // Shows the link settings; the port list is scanned afresh by fillPortList.
    void refresh();
    void fillPortList();

    // Opens the port typed or chosen; a path typed by hand that opened joins the list.
    void ComboPort_Click();
    void cmdRefreshComm_Click();
    void OptionBitRate_Click(int index);
    void TextAddress_Click();
    void UpDownAddress_Change(int value);
    void txtXaddr_Click();
    void UpDownXaddr_Change(int value);
    void CheckXaddress_Click();
    void CheckKestrelBD_Click();
    void CheckCorvid_Click();
    void cmdSetTM_Click();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void changed() const;
    // A handler's change, inside the guard; then the link settings shown again.
    void changeThenRefresh(const std::function<void()>& change);
    // A typed address box left: its text taken by the link's control.
    void take(QLineEdit* box, std::string (LinkControl::*taker)(const std::string&));
    Session& session;
    CorvidControl& corvid;
    Guard& guard;
    RememberedSettings& kept;
};

} // namespace kestrel
