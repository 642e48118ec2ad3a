#include "quillon/chatmessageview.h"

#include "chat/chathtml.h"
#include "quillon/chatimageobject.h"

#include <QAbstractTextDocumentLayout>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextCursor>
#include <QUrl>

ChatMessageView::ChatMessageView(QWidget* parent)
    : QPlainTextEdit(parent), m_placeholder(1, 1, QImage::Format_ARGB32), m_imageObject(new ChatImageObject(this))
{
    m_placeholder.fill(Qt::transparent);
    setReadOnly(true);
    setUndoRedoEnabled(false);
    setMaximumBlockCount(maxLines);
    document()->documentLayout()->registerHandler(QTextFormat::ImageObject, m_imageObject);
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
    QTextCursor batch(document());
    // One change for the whole batch, so the view lays out once.
    batch.beginEditBlock();
    // Only the newest lines would stay in the document anyway.
    for (int i = qMax(0, messages.size() - maxLines); i < messages.size(); ++i)
        append(ChatHtml::render(messages.at(i)), ChatHtml::imageUrls(messages.at(i)));
    batch.endEditBlock();
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
    if (m_images.size() + images.size() > maxImages || m_appended >= rebuildLines)
        rebuild();
    ++m_appended;
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

// A document only ever grows inside: removed text stays in its buffer, every colour and
// picture it saw stays among its formats and resources. Only a clear() lets them go, so
// now and then it starts again with the newest half of its lines (fewer when they would
// need more than half the images allowed).
void ChatMessageView::rebuild()
{
    m_appended = 0;
    QList<QPair<QString, QStringList>> kept;
    QSet<QString> images;
    for (int i = m_recent.size() - 1; i >= 0 && kept.size() < maxLines / 2; --i) {
        int added = 0;
        for (const QString& url : m_recent.at(i).second)
            added += images.contains(url) ? 0 : 1;
        if (images.size() + added > maxImages / 2)
            break;
        for (const QString& url : m_recent.at(i).second)
            images.insert(url);
        kept.prepend(m_recent.at(i));
    }
    m_recent = kept;
    m_images.clear();
    document()->clear();
    QTextCursor batch(document());
    batch.beginEditBlock();
    for (const auto& line : qAsConst(m_recent)) {
        addImages(line.second);
        insertLine(line.first);
    }
    batch.endEditBlock();
}
