#pragma once
#include <QDialog>

class QTextBrowser;

namespace kestrel {

// The user guide compiled into the program (":/user-guide.md"), in a window of its own that
// stays open beside the main window. It opens at the section a page asks for.
class UserGuide : public QDialog {
public:
    explicit UserGuide(QWidget* parent);
    // Shows the guide with the section headed `heading` at the top (the start when the guide
    // has no such heading).
    void showSection(const QString& heading);
    // The heading of the section at the top of the view.
    QString shownSection() const;

    QTextBrowser* TextUserGuide;
};

} // namespace kestrel
