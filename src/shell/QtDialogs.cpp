#include "shell/QtDialogs.h"

#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>

namespace kestrel {

namespace {
QMessageBox::Icon qtIcon(Icon icon)
{
    switch (icon) {
    case Icon::Warning:
        return QMessageBox::Warning;
    case Icon::Information:
        return QMessageBox::Information;
    case Icon::Question:
        return QMessageBox::Question;
    case Icon::None:
        break;
    }
    return QMessageBox::NoIcon;
}

// "Kestrel Config Data|*.dat" -> "Kestrel Config Data (*.dat)"
QString qtFilter(const std::string& filter)
{
    const QStringList parts = QString::fromLatin1(filter.c_str()).split('|');
    QStringList out;
    for (int i = 0; i + 1 < parts.size(); i += 2)
        out << parts[i] + " (" + parts[i + 1] + ")";
    return out.join(";;");
}
} // namespace

void QtDialogs::message(const std::string& text, Icon icon)
{
    QMessageBox box(qtIcon(icon), QApplication::applicationDisplayName(), QString::fromLatin1(text.c_str()),
                    QMessageBox::Ok, parent);
    box.exec();
}

Answer QtDialogs::ask(const std::string& text, Buttons buttons, Icon icon)
{
    QMessageBox::StandardButtons set = QMessageBox::Ok;
    if (buttons == Buttons::OkCancel)
        set = QMessageBox::Ok | QMessageBox::Cancel;
    else if (buttons == Buttons::YesNo)
        set = QMessageBox::Yes | QMessageBox::No;
    QMessageBox box(qtIcon(icon), QApplication::applicationDisplayName(), QString::fromLatin1(text.c_str()), set,
                    parent);
    switch (box.exec()) {
    case QMessageBox::Ok:
        return Answer::Ok;
    case QMessageBox::Yes:
        return Answer::Yes;
    case QMessageBox::No:
        return Answer::No;
    default:
        return Answer::Cancel;
    }
}

std::string QtDialogs::openFileName(const std::string& title, const std::string& filter, const std::string& defaultName)
{
    return QFileDialog::getOpenFileName(parent, QString::fromLatin1(title.c_str()), QString::fromStdString(defaultName),
                                        qtFilter(filter))
        .toStdString();
}

std::string QtDialogs::saveFileName(const std::string& title, const std::string& filter, const std::string& defaultName)
{
    return QFileDialog::getSaveFileName(parent, QString::fromLatin1(title.c_str()), QString::fromStdString(defaultName),
                                        qtFilter(filter))
        .toStdString();
}

} // namespace kestrel
