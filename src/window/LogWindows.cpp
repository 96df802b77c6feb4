#include "window/LogWindows.h"
#include "window/Widgets.h"

#include <QDialog>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace kestrel {

QDialog* makeVerificationWindow(QWidget* parent, QPlainTextEdit*& text)
{
    auto* window = named(new QDialog(parent), "frmKestrelVerification");
    window->setWindowTitle("Kestrel Verification");
    auto* l = new QVBoxLayout(window);
    text = named(new QPlainTextEdit, "txtVerification");
    text->setReadOnly(true);
    text->setAccessibleName("Verification report");
    l->addWidget(text);
    window->resize(560, 420);
    return window;
}

QDialog* makeCorvidWindow(QWidget* parent, QPlainTextEdit*& text, QPushButton*& clear)
{
    auto* window = named(new QDialog(parent), "frmCorvidComm");
    window->setWindowTitle("Corvid Communication");
    auto* l = new QVBoxLayout(window);
    text = named(new QPlainTextEdit, "txtCorvidCommunication");
    text->setReadOnly(true);
    text->setAccessibleName("Corvid communication");
    text->setFont(QFont("monospace"));
    clear = named(new QPushButton("&Clear"), "cmdClear");
    l->addWidget(text);
    l->addWidget(clear);
    window->resize(480, 360);
    return window;
}

} // namespace kestrel
