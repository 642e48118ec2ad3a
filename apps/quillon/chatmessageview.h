#pragma once

#include "stores/chatdesc.h"

#include <QHash>
#include <QImage>
#include <QList>
#include <QPair>
#include <QSet>
#include <QStringList>
#include <QTextBrowser>

#include <functional>

// The chat's messages, newest at the bottom, as rich text built by ChatHtml (everything the
// services sent is escaped). The document keeps the newest maxLines lines (trimLines more
// for a while) and is rebuilt
// from them after every rebuildLines lines or when too many images have gathered, so a
// long show does not grow it.
class ChatMessageView : public QTextBrowser
{
    Q_OBJECT

public:
    // The newest lines kept; up to trimLines more gather before the oldest go.
    static constexpr int maxLines = 500;
    static constexpr int trimLines = 100;
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
    void trim();
    void addImages(const QStringList& urls);
    void rebuild();

    std::function<QImage(const QString&)> m_imageSource;
    QSet<QString> m_images;                      // addresses the document holds
    QList<QPair<QString, QStringList>> m_recent; // the lines shown, with their images
    QImage m_placeholder;
    int m_appended = 0;
};
