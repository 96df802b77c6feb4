#include "window/LogWindows.h"
#include "window/Bindings.h"
#include "window/JobRunner.h"
#include "window/KestrelConfig.h"
#include "window/Language.h"
#include "window/Widgets.h"

#include <QDialog>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace kestrel {

namespace {
// A window that shows a read-only text (named `textName`), at the top of its column.
QVBoxLayout* textWindow(QDialog*& window, QWidget* parent, const char* name, const QString& title,
                        QPlainTextEdit*& text, const char* textName, const QString& accessibleName)
{
    window = named(new QDialog(parent), name);
    window->setWindowTitle(title);
    auto* l = new QVBoxLayout(window);
    text = named(new QPlainTextEdit, textName);
    text->setReadOnly(true);
    text->setAccessibleName(accessibleName);
    l->addWidget(text);
    return l;
}
} // namespace

QDialog* makeVerificationWindow(QWidget* parent, QPlainTextEdit*& text, QPushButton*& showDifferences)
{
    QDialog* window = nullptr;
    QVBoxLayout* l = textWindow(window, parent, "frmKestrelVerification", Lang::tr("Kestrel Verification"),
                                text, "txtVerification", Lang::tr("Verification report"));
    showDifferences = named(new QPushButton(Lang::tr("Show Differences")), "CommandShowDifferences");
    showDifferences->setAccessibleName(Lang::tr("Show Differences"));
    showDifferences->setToolTip(
        Lang::tr("Reads the module beside the configuration and lists every difference"));
    l->addWidget(showDifferences);
    window->resize(560, 420);
    return window;
}

QDialog* makeCorvidWindow(QWidget* parent, QPlainTextEdit*& text, QPushButton*& clear)
{
    QDialog* window = nullptr;
    QVBoxLayout* l = textWindow(window, parent, "frmCorvidComm", Lang::tr("Corvid Communication"), text,
                                "txtCorvidCommunication", Lang::tr("Corvid communication"));
    text->setFont(QFont("monospace"));
    clear = named(new QPushButton(Lang::tr("&Clear")), "cmdClear");
    l->addWidget(clear);
    window->resize(480, 360);
    return window;
}

void ensureVerificationWindow(KestrelConfig& w)
{
    if (w.frmKestrelVerification)
        return;
    w.frmKestrelVerification = makeVerificationWindow(&w, w.txtVerification, w.CommandShowDifferences);
    // The window takes input during a job (it only watches): a job under way is not replaced.
    QObject::connect(w.CommandShowDifferences, &QPushButton::clicked, &w, [&w] {
        if (!w.runner->busy())
            w.startJob(Jobs::CompareModule);
    });
}

void ensureCorvidWindow(KestrelConfig& w)
{
    if (w.frmCorvidComm)
        return;
    w.frmCorvidComm = makeCorvidWindow(&w, w.txtCorvidCommunication, w.cmdClear);
    QObject::connect(w.cmdClear, &QPushButton::clicked, &w, [&w] {
        w.txtCorvidCommunication->clear();
        w.core->link.txtCorvidCommunication.clear();
    });
    QObject::connect(w.frmCorvidComm, &QDialog::finished, &w, [&w] { w.corvidLogDismissed = true; });
}

void attachLogWindows(KestrelConfig& w)
{
    Session& s = *w.core;
    s.link.onCorvidLog = [&w](const std::string& line) {
        ensureCorvidWindow(w);
        w.txtCorvidCommunication->appendPlainText(latin1(line));
        if (!w.frmCorvidComm->isVisible() && !w.corvidLogDismissed)
            w.frmCorvidComm->show();
    };
    s.report.onClear = [&w] {
        ensureVerificationWindow(w);
        w.txtVerification->clear();
    };
    s.report.onLine = [&w](const std::string& line) {
        ensureVerificationWindow(w);
        w.txtVerification->appendPlainText(latin1(line));
        w.runner->reportLine(line);
    };
    s.onShowVerification = [&w] {
        ensureVerificationWindow(w);
        w.frmKestrelVerification->show();
        w.frmKestrelVerification->raise();
    };
}

} // namespace kestrel
