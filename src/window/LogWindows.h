#pragma once

class QDialog;
class QPlainTextEdit;
class QPushButton;
class QWidget;

namespace kestrel {

// The window's two text windows, each made on first use and kept by the window.
// The verification report ("frmKestrelVerification"), its read-only text `text`.
QDialog* makeVerificationWindow(QWidget* parent, QPlainTextEdit*& text);
// The Corvid system's log ("frmCorvidComm"): its read-only text `text` and a `clear` button.
QDialog* makeCorvidWindow(QWidget* parent, QPlainTextEdit*& text, QPushButton*& clear);

} // namespace kestrel
