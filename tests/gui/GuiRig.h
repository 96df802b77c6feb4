#pragma once
// Rigs of the window tests: a session on the built-in simulated module (the demonstration
// configuration at bus address 0) for one page, and the whole window on it.
#include "platform/ProgramSession.h"
#include "session/Session.h"
#include "support/RecordingDialogs.h"
#include "window/KestrelConfig.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSettings>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include <memory>

namespace kestrel::test {

// One page of the window (PageType(Session&, extra...)), shown, on a session set up as the
// programs set up theirs, with the built-in module chosen as its port.
template <typename PageType> struct PageRig {
    RecordingDialogs dialogs;
    ProgramSession program{dialogs};
    std::unique_ptr<Session>& session = program.session;
    std::unique_ptr<PageType> page;

    template <typename... Extra> explicit PageRig(Extra&&... extra)
    {
        program.port.select("sim");
        program.port.open();
        page = std::make_unique<PageType>(*session, std::forward<Extra>(extra)...);
        page->show();
    }
    PinRecord& pin(int p) { return session->config.pin(p); }
};

// The window with the built-in module chosen as its port.
struct Window {
    RecordingDialogs dialogs;
    // Every window starts as on a first start: nothing remembered from an earlier test.
    struct Fresh {
        Fresh() { QSettings("Kestrel", "Kestrel Config").clear(); }
    } fresh;
    KestrelConfig w{nullptr, &dialogs};
    explicit Window(bool open = true)
    {
        w.show();
        if (open)
            openPort("sim");
    }
    void openPort(const QString& name)
    {
        w.ComboPort->setEditText(name);
        QTest::keyClick(w.ComboPort, Qt::Key_Return);
    }
    // Runs a whole-module job from its button and waits for it to end.
    void job(QPushButton* button)
    {
        QTest::mouseClick(button, Qt::LeftButton);
        waitIdle();
    }
    void waitIdle()
    {
        ASSERT_TRUE(
            QTest::qWaitFor([&] { return !w.LabelAction->isVisible() && w.jobs.PendingJob.empty(); }, 60000));
    }
    // Makes the window the active one again, for its shortcuts.
    void activate()
    {
        w.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&w));
    }
    QString report() const { return w.txtVerification ? w.txtVerification->toPlainText() : QString(); }
    QString status() const { return w.LabelStatusJob->text(); }
};

template <typename W> W* child(QWidget& w, const QString& name)
{
    W* found = w.findChild<W*>(name);
    EXPECT_NE(found, nullptr) << name.toStdString();
    return found;
}

// Text put into a box and the box left (as the page's handlers see it).
inline void enter(QLineEdit* box, const QString& text)
{
    box->setText(text);
    emit box->editingFinished();
}

// Types into a box as a user does: everything selected, the new text typed, Return.
inline void type(QLineEdit* box, const QString& text)
{
    box->setFocus();
    box->selectAll();
    QTest::keyClick(box, Qt::Key_Backspace);
    for (QChar c : text) // a character beyond ASCII comes as a key event with its text
        QTest::sendKeyEvent(QTest::Click, box, Qt::Key_unknown, QString(c), Qt::NoModifier);
    QTest::keyClick(box, Qt::Key_Return);
}

// What a user does in the modal dialog `name` once it is up (the call that opens it does
// not return before it closes). `act` must close it.
inline void onModal(const QString& name, std::function<void(QDialog&)> act)
{
    auto* poll = new QTimer;
    QObject::connect(poll, &QTimer::timeout, poll, [poll, name, act] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!dialog || dialog->objectName() != name)
            return;
        poll->deleteLater();
        poll->stop();
        act(*dialog);
    });
    poll->start(10);
}

// Clicks the button `name` of the modal dialog `dialog` once it is up.
inline void clickInModal(const QString& dialog, const QString& button)
{
    onModal(dialog, [button](QDialog& d) {
        auto* b = d.findChild<QAbstractButton*>(button);
        ASSERT_NE(b, nullptr) << button.toStdString();
        QTest::mouseClick(b, Qt::LeftButton);
    });
}

} // namespace kestrel::test
