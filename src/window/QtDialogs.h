#pragma once
#include "base/UserDialogs.h"

#include <QString>

class QWidget;

namespace kestrel {

// Message boxes and file dialogs of the window. Texts are single-byte (Latin-1).
//
// A box raised while a job runs belongs to the job's progress dialog (the top modal
// window), so it shows above it, takes the keyboard, and its answer reaches the job.
class QtDialogs : public UserDialogs {
public:
    explicit QtDialogs(QWidget* parent = nullptr) : parent(parent) {}
    void setParent(QWidget* p) { parent = p; }
    void message(const std::string& text, Icon icon) override;
    Answer ask(const std::string& text, Buttons buttons, Icon icon) override;
    std::string openFileName(const std::string& title, const std::string& filter,
                             const std::string& defaultName) override;
    std::string saveFileName(const std::string& title, const std::string& filter,
                             const std::string& defaultName) override;

    // The folder the file dialogs start in: the one a file was last chosen in.
    QString folder() const { return lastFolder; }
    void setFolder(const QString& f) { lastFolder = f; }

    // The folder an open dialog for definitions files starts in (the standard file's).
    QString definitionsFolder;

    // The window that a box raised now belongs to: the top modal window, else the parent.
    QWidget* owner() const;
    // A typed name without a suffix gets the first one of the filter ("mylayout" ->
    // "mylayout.dat" for "Kestrel Config Data|*.dat").
    static QString withDefaultSuffix(const QString& name, const std::string& filter);

private:
    QWidget* parent;
    QString lastFolder; // where the last file was chosen
};

} // namespace kestrel
