#pragma once

class QDialog;
class QPlainTextEdit;
class QPushButton;
class QWidget;

namespace kestrel {

class KestrelConfig;

// What the window shows of the link's Corvid log and of the verification report: each
// window is made on first use; the Corvid log opens when first written to and, once the
// user has closed it, stays closed until View > Corvid Log opens it again.
void attachLogWindows(KestrelConfig& window);
void ensureVerificationWindow(KestrelConfig& window);
void ensureCorvidWindow(KestrelConfig& window);

// The window's two text windows, each made on first use and kept by the window.
// The verification report ("frmKestrelVerification"), its read-only text `text` and its
// `showDifferences` button.
QDialog* makeVerificationWindow(QWidget* parent, QPlainTextEdit*& text, QPushButton*& showDifferences);
// The Corvid system's log ("frmCorvidComm"): its read-only text `text` and a `clear` button.
QDialog* makeCorvidWindow(QWidget* parent, QPlainTextEdit*& text, QPushButton*& clear);

} // namespace kestrel
