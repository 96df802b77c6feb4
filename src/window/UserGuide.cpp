#include "window/UserGuide.h"
#include "window/Language.h"
#include "window/Widgets.h"

#include <QAbstractTextDocumentLayout>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace kestrel {

UserGuide::UserGuide(QWidget* parent) : QDialog(parent)
{
    setObjectName("frmUserGuide");
    setWindowTitle(Lang::tr("Kestrel Config User Guide"));
    auto* l = new QVBoxLayout(this);
    TextUserGuide = named(new QTextBrowser, "TextUserGuide");
    TextUserGuide->setAccessibleName(Lang::tr("User guide"));
    TextUserGuide->setOpenExternalLinks(true);
    TextUserGuide->setSource(QUrl("qrc:/user-guide.md"), QTextDocument::MarkdownResource);
    l->addWidget(TextUserGuide);
    resize(720, 600);
}

void UserGuide::showSection(const QString& heading)
{
    show();
    raise();
    activateWindow();
    QTextDocument* guide = TextUserGuide->document();
    QTextBlock block = guide->begin();
    while (block.isValid() && !(block.blockFormat().headingLevel() > 0 && block.text() == heading))
        block = block.next();
    if (!block.isValid())
        block = guide->begin();
    TextUserGuide->setTextCursor(QTextCursor(block));
    TextUserGuide->verticalScrollBar()->setValue(
        static_cast<int>(guide->documentLayout()->blockBoundingRect(block).top()));
}

QString UserGuide::shownSection() const
{
    QTextBlock block = TextUserGuide->cursorForPosition(QPoint(4, 4)).block();
    while (block.isValid() && block.blockFormat().headingLevel() == 0)
        block = block.previous();
    return block.isValid() ? block.text() : QString();
}

} // namespace kestrel
