#include "window/QtDialogs.h"
#include "window/Language.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPointer>
#include <QProgressDialog>
#include <QPushButton>
#include <QRegularExpression>

#include <utility>

namespace kestrel {

namespace {
QMessageBox::Icon qtIcon(Icon icon)
{
    // As Icon: None, Warning, Information, Question.
    static const QMessageBox::Icon icons[] = {QMessageBox::NoIcon, QMessageBox::Warning,
                                              QMessageBox::Information, QMessageBox::Question};
    return icons[static_cast<int>(icon)];
}

// The kinds of file the filters name, in the user's language where the filter shows them.
[[maybe_unused]] const char* const kFileKinds[] = {QT_TRANSLATE_NOOP("Lang", "Kestrel Config Data"),
                                                   QT_TRANSLATE_NOOP("Lang", "Kestrel Device Definitions")};

// "Kestrel Config Data|*.dat" -> "Kestrel Config Data (*.dat)"
QString qtFilter(const std::string& filter)
{
    const QStringList parts = QString::fromLatin1(filter.c_str()).split('|');
    QStringList out;
    for (int i = 0; i + 1 < parts.size(); i += 2)
        out << QCoreApplication::translate("Lang", parts[i].toLatin1().constData()) + " (" + parts[i + 1] +
                   ")";
    return out.join(";;");
}
} // namespace

QWidget* QtDialogs::owner() const
{
    // A job's progress dialog shows itself after a moment even while a box waits for its
    // answer, and would then cover and block a box that belongs to the window. The box is
    // the progress dialog's own instead, which is brought up first.
    if (parent) {
        const auto running =
            parent->findChildren<QProgressDialog*>("dlgProgress", Qt::FindDirectChildrenOnly);
        if (!running.isEmpty()) {
            QProgressDialog* progress = running.last();
            if (!progress->isVisible())
                progress->show();
            return progress;
        }
    }
    if (QWidget* modal = QApplication::activeModalWidget())
        return modal;
    return parent;
}

namespace {
int showBox(QMessageBox& box)
{
    // Every answer has its letter (Alt+S, Alt+D, ...).
    for (auto [which, caption] : {std::pair{QMessageBox::Save, QT_TRANSLATE_NOOP("Lang", "&Save")},
                                  std::pair{QMessageBox::Discard, QT_TRANSLATE_NOOP("Lang", "&Discard")},
                                  std::pair{QMessageBox::Cancel, QT_TRANSLATE_NOOP("Lang", "&Cancel")},
                                  std::pair{QMessageBox::Yes, QT_TRANSLATE_NOOP("Lang", "&Yes")},
                                  std::pair{QMessageBox::No, QT_TRANSLATE_NOOP("Lang", "&No")},
                                  std::pair{QMessageBox::Ok, QT_TRANSLATE_NOOP("Lang", "&OK")}})
        if (QAbstractButton* button = box.button(which))
            button->setText(Lang::tr(caption));
    // The keyboard goes back where it was when the box closes, also after two in a row.
    // Right after another box the window may not be active yet: its own window then.
    QPointer<QWidget> active = QApplication::activeWindow();
    if (!active && box.parentWidget())
        active = box.parentWidget()->window();
    const QPointer<QWidget> focus = active ? active->focusWidget() : nullptr;
    box.setWindowModality(Qt::ApplicationModal);
    box.show();
    box.raise();
    box.activateWindow();
    const int answer = box.exec();
    box.hide();
    if (active) {
        active->activateWindow();
        if (focus && focus->isVisible())
            focus->setFocus(Qt::OtherFocusReason);
    }
    return answer;
}
} // namespace

void QtDialogs::message(const std::string& text, Icon icon)
{
    QMessageBox box(qtIcon(icon), QApplication::applicationDisplayName(), translatedMessage(text),
                    QMessageBox::Ok, owner());
    box.setObjectName("dlgMessage");
    showBox(box);
}

Answer QtDialogs::ask(const std::string& text, Buttons buttons, Icon icon)
{
    QMessageBox::StandardButtons set = QMessageBox::Ok;
    if (buttons == Buttons::OkCancel)
        set = QMessageBox::Ok | QMessageBox::Cancel;
    else if (buttons == Buttons::YesNo)
        set = QMessageBox::Yes | QMessageBox::No;
    else if (buttons == Buttons::SaveDiscardCancel)
        set = QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel;
    QMessageBox box(qtIcon(icon), QApplication::applicationDisplayName(), translatedMessage(text), set,
                    owner());
    box.setObjectName("dlgQuestion");
    const int clicked = showBox(box);
    static const std::pair<QMessageBox::StandardButton, Answer> answers[] = {
        {QMessageBox::Ok, Answer::Ok},
        {QMessageBox::Yes, Answer::Yes},
        {QMessageBox::No, Answer::No},
        {QMessageBox::Save, Answer::Save},
        {QMessageBox::Discard, Answer::Discard}};
    for (const auto& [button, answer] : answers)
        if (clicked == static_cast<int>(button))
            return answer;
    return Answer::Cancel; // Cancel, or the window closed
}

QString QtDialogs::withDefaultSuffix(const QString& name, const std::string& filter)
{
    if (name.isEmpty() || !QFileInfo(name).suffix().isEmpty())
        return name;
    const auto match = QRegularExpression(R"(\*\.(\w+))").match(QString::fromLatin1(filter.c_str()));
    return match.hasMatch() ? name + "." + match.captured(1) : name;
}

std::string QtDialogs::openFileName(const std::string& title, const std::string& filter,
                                    const std::string& defaultName)
{
    // Definitions files are looked for beside the standard one, data files where the last
    // file was chosen.
    const bool definitions = filter.find("*.def") != std::string::npos;
    const QString folder = definitions && !definitionsFolder.isEmpty() ? definitionsFolder : lastFolder;
    QString start = QString::fromStdString(defaultName);
    if (!folder.isEmpty())
        start = start.isEmpty() ? folder : folder + "/" + start;
    const QString chosen =
        QFileDialog::getOpenFileName(owner(), translated("Messages", title), start, qtFilter(filter));
    if (!chosen.isEmpty() && !definitions)
        lastFolder = QFileInfo(chosen).absolutePath();
    return chosen.toStdString();
}

std::string QtDialogs::saveFileName(const std::string& title, const std::string& filter,
                                    const std::string& defaultName)
{
    QFileDialog dialog(owner(), translated("Messages", title), lastFolder, qtFilter(filter));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    // The suffix is added before the dialog asks about replacing an existing file.
    const QString suffix = QFileInfo(withDefaultSuffix("x", filter)).suffix();
    dialog.setDefaultSuffix(suffix);
    if (!defaultName.empty())
        dialog.selectFile(QString::fromStdString(defaultName));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return {};
    const QString chosen = withDefaultSuffix(dialog.selectedFiles().first(), filter);
    if (!chosen.isEmpty())
        lastFolder = QFileInfo(chosen).absolutePath();
    return chosen.toStdString();
}

} // namespace kestrel
