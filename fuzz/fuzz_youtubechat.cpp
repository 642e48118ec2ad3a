// Pages of a YouTube live chat as the service might send them: the chat reads each page,
// colours the authors, asks for their pictures (the pieces after the pages answer those) and
// hands every message to a listener that renders it as the chat view does.

#include "chat/chathtml.h"
#include "chat/chatlistener.h"
#include "chat/chatyoutube.h"
#include "stores/chatdesc.h"
#include "stores/streamingmanager.h"

#include "fuzzsupport.h"

namespace {

class RenderingListener : public ChatListener
{
public:
    void chatEvent(const QString& tag, const QVariant& data) override
    {
        if (tag != ChatProvider::messageTag)
            return;
        const ChatDesc message = data.value<ChatDesc>();
        ChatHtml::render(message);
        ChatHtml::imageUrls(message);
    }
};

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    Fuzz::startApplication(false);
    // The store keeps the newest messages for the host.
    static StreamingManager store(ContentsSettings::underDirectory(Fuzz::scratchDirectory("youtubechat")), LicenseModel());
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QList<QByteArray> replies = Fuzz::pieces(data, size);
    {
        FuzzView view(replies);
        RenderingListener listener;
        ChatYouTube chat(&view);
        chat.addListener(&listener);
        chat.chatConnect(QString(), QStringLiteral("Cg0KC2xpdmVjaGF0aWQ"));
        // Each piece the pictures leave over is the next page. A few pages show how the chat
        // follows its tokens; more only repeat them, and long inputs slow every other one.
        const int pages = qMin(replies.size(), 8);
        for (int page = 1; page < pages && view.network().requests() < replies.size(); ++page) {
            Fuzz::settle(); // the pictures' replies arrive
            if (chat.nextPageToken().isEmpty())
                break;
            chat.nextPageCall();
        }
        chat.chatDisconnect();
        Fuzz::settle();
    }
    Fuzz::settle();
    return 0;
}
