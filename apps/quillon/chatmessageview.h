#pragma once

#include "stores/chatdesc.h"

#include <QHash>
#include <QImage>
#include <QList>
#include <QPair>
#include <QSet>
#include <QStringList>
#include <QPlainTextEdit>

#include <functional>

class ChatImageObject;

// The chat's messages, newest at the bottom, as rich text built by ChatHtml (everything the
// services sent is escaped). A plain-text view: it lays out only the lines it shows, so
// a flood costs little. The document keeps the newest maxLines lines and is rebuilt
// from them after every rebuildLines lines or when too many images have gathered, so a
// long show does not grow it.
class ChatMessageView : public QPlainTextEdit
{
    Q_OBJECT

public:
    static constexpr int maxLines = 200;
    static constexpr int maxImages = 1000;
    // Lines added before the document is rebuilt from the lines shown.
    static constexpr int rebuildLines = 10 * maxLines;

    explicit ChatMessageView(QWidget* parent = nullptr);

    // Where pictures come from: an image by address, null when it has not arrived.
    void setImageSource(std::function<QImage(const QString&)> source);
    void appendMessages(const QList<ChatDesc>& messages);
    // A line of the panel's own (connection state, a service notice).
    void appendNotice(const QString& text, bool warning);
    // A picture that has arrived; it replaces its placeholder.
    void setImage(const QString& url, const QImage& image);
    int lineCount() const;

private:
    void append(const QString& html, const QStringList& images);
    void insertLine(const QString& html);
    void addImages(const QStringList& urls);
    void rebuild();

    std::function<QImage(const QString&)> m_imageSource;
    QSet<QString> m_images;                      // addresses the document holds
    QList<QPair<QString, QStringList>> m_recent; // the lines shown, with their images
    QImage m_placeholder;
    ChatImageObject* m_imageObject;
    int m_appended = 0;
};
