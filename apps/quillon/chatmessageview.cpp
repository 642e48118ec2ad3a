#include "quillon/chatmessageview.h"

#include "chat/chathtml.h"

#include <QScrollBar>
#include <QTextBlock>
#include <QTextCursor>
#include <QUrl>

ChatMessageView::ChatMessageView(QWidget* parent) : QTextBrowser(parent), m_placeholder(1, 1, QImage::Format_ARGB32)
{
    m_placeholder.fill(Qt::transparent);
    setOpenLinks(false);
    setOpenExternalLinks(false);
    setUndoRedoEnabled(false);
    document()->setMaximumBlockCount(maxLines);
}

void ChatMessageView::setImageSource(std::function<QImage(const QString&)> source)
{
    m_imageSource = std::move(source);
}

int ChatMessageView::lineCount() const
{
    return document()->isEmpty() ? 0 : document()->blockCount();
}

void ChatMessageView::appendMessages(const QList<ChatDesc>& messages)
{
    QScrollBar* bar = verticalScrollBar();
    const bool atBottom = bar->value() >= bar->maximum() - 4;
    // Only the newest lines would stay in the document anyway.
    for (int i = qMax(0, messages.size() - maxLines); i < messages.size(); ++i)
        append(ChatHtml::render(messages.at(i)), ChatHtml::imageUrls(messages.at(i)));
    if (atBottom)
        bar->setValue(bar->maximum());
}

void ChatMessageView::appendNotice(const QString& text, bool warning)
{
    const QString color = warning ? QStringLiteral("#D03030") : QStringLiteral("#808080");
    append(QStringLiteral("<span style=\"color:%1\"><i>%2</i></span>").arg(color, text.toHtmlEscaped()), {});
    verticalScrollBar()->setValue(verticalScrollBar()->maximum());
}

void ChatMessageView::append(const QString& html, const QStringList& images)
{
    if (m_images.size() + images.size() > maxImages)
        rebuild();
    addImages(images);
    m_recent.append({html, images});
    while (m_recent.size() > maxLines)
        m_recent.removeFirst();
    insertLine(html);
}

void ChatMessageView::insertLine(const QString& html)
{
    QTextCursor cursor(document());
    cursor.movePosition(QTextCursor::End);
    if (!document()->isEmpty())
        cursor.insertBlock(QTextBlockFormat(), QTextCharFormat());
    cursor.insertHtml(html);
}

void ChatMessageView::addImages(const QStringList& urls)
{
    for (const QString& url : urls) {
        if (m_images.contains(url))
            continue;
        const QImage image = m_imageSource ? m_imageSource(url) : QImage();
        document()->addResource(QTextDocument::ImageResource, QUrl(url), image.isNull() ? m_placeholder : image);
        m_images.insert(url);
    }
}

void ChatMessageView::setImage(const QString& url, const QImage& image)
{
    if (!m_images.contains(url) || image.isNull())
        return;
    document()->addResource(QTextDocument::ImageResource, QUrl(url), image);
    // The lines keep their size (the HTML gives it); only their painting changes.
    viewport()->update();
}

// The document's resources only go with a clear(): start again with the newest lines, as
// many as use half the images allowed.
void ChatMessageView::rebuild()
{
    QList<QPair<QString, QStringList>> kept;
    QSet<QString> images;
    for (int i = m_recent.size() - 1; i >= 0; --i) {
        QSet<QString> more = images;
        for (const QString& url : m_recent.at(i).second)
            more.insert(url);
        if (more.size() > maxImages / 2)
            break;
        images = more;
        kept.prepend(m_recent.at(i));
    }
    m_recent = kept;
    m_images.clear();
    document()->clear();
    for (const auto& line : qAsConst(m_recent)) {
        addImages(line.second);
        insertLine(line.first);
    }
}
