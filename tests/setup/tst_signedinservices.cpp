#include "engine/quillonengine.h"
#include "provider/provider.h"
#include "provider/webview.h"
#include "setup/eventdialog.h"
#include "support/fakecefmanager.h"
#include "support/modaldriver.h"
#include "support/servicefixture.h"
#include "support/streamingsetupform.h"

#include <QDateEdit>
#include <QDir>
#include <QPlainTextEdit>

// YouTube, Facebook and Twitch signed in to from the streaming dialog, as an operator does,
// against replies shaped as the services document them. Tokens and keys hold "SECRET": no
// log line may.
namespace {

const QString loopback = QStringLiteral("http://localhost/oauth2callback");
const QString ytToken = QStringLiteral("access_token=yt-SECRET-token");
const QString broadcasts = "GET /youtube/v3/liveBroadcasts?part=snippet,contentDetails,status&broadcastStatus=all&"
                           "broadcastType=all&maxResults=50&fields=items(contentDetails/boundStreamId,id,snippet(description,"
                           "isDefaultBroadcast,scheduledEndTime,scheduledStartTime,channelId,title,liveChatId),"
                           "status/privacyStatus)&" + ytToken;
const QString broadcastWrite = "/youtube/v3/liveBroadcasts?part=id,snippet,contentDetails,status&"
                               "fields=contentDetails,id,snippet,statistics,status&" + ytToken + " | application/json ";
const QString broadcastDetails = R"("contentDetails":{"enableContentEncryption":false,"enableDvr":true,"enableEmbed":false,)"
                                 R"("monitorStream":{"broadcastStreamDelayMs":0,"enableMonitorStream":true},)"
                                 R"("recordFromStart":true,"startWithSlate":true})";
const QString fbVideos = "?fields=live_videos%7Bembed_html,stream_url,title,description,status%7D&access_token=";

void serveServices(HttpServer& server)
{
    serveJson(server, {
        {"POST /o/oauth2/token", R"({"access_token":"yt-SECRET-token","expires_in":3599,"token_type":"Bearer"})"},
        {"GET /youtube/v3/liveBroadcasts",
         R"({"items":[{"id":"b1","snippet":{"title":"Match day","description":"Final","isDefaultBroadcast":false,)"
         R"("scheduledStartTime":"2024-05-01T18:00:00.000Z","liveChatId":"chat-b1"},"status":{"privacyStatus":"unlisted"},)"
         R"("contentDetails":{"boundStreamId":"s1"}},{"id":"b2","snippet":{"title":"No stream"},"contentDetails":{}}]})"},
        {"GET /youtube/v3/liveStreams",
         R"({"items":[{"id":"s1","cdn":{"ingestionType":"rtmp","ingestionInfo":{"streamName":"yt-SECRET-key",)"
         R"("ingestionAddress":"rtmp://a.rtmp.youtube.com/live2","backupIngestionAddress":"rtmp://b.rtmp.youtube.com/live2?backup=1"}}}]})"},
        {"GET /youtube/v3/videos", R"({"items":[{"id":"b1","snippet":{"categoryId":"17","tags":["final","cup"]}}]})"},
        {"GET /youtube/v3/videoCategories", R"({"items":[{"id":"17","snippet":{"title":"Sports","assignable":true}},)"
                                            R"({"id":"18","snippet":{"title":"Shorts","assignable":false}}]})"},
        {"POST /youtube/v3/liveBroadcasts", R"({"id":"b9","snippet":{"channelId":"UC1","title":"Cup final","description":"Live"}})"},
        {"POST /youtube/v3/liveStreams", R"({"id":"s9","cdn":{}})"}, {"POST /youtube/v3/liveBroadcasts/bind", R"({"id":"b9"})"},
        {"PUT /youtube/v3/videos", R"({"id":"b1"})"}, {"PUT /youtube/v3/liveBroadcasts", R"({"id":"b1"})"},
        {"DELETE /youtube/v3/liveBroadcasts", "{}"}, {"GET /o/oauth2/revoke", "{}"},

        {"GET /v2.8/oauth/access_token", R"({"access_token":"fb-SECRET-user","token_type":"bearer"})"},
        {"GET /v2.8/me/", R"({"accounts":{"data":[{"access_token":"fb-SECRET-page","category":"Sports","name":"Club Page",)"
                          R"("id":"200"}]},"name":"Kai","id":"100"})"},
        // An unpublished video without a title, and one already over.
        {"GET /v2.8/100/", R"({"live_videos":{"data":[{"status":"UNPUBLISHED","id":"301","title":"",)"
                           R"("embed_html":"<iframe src='https://www.facebook.com/plugins/video.php?href=https%3A%2F%2F)"
                           R"(www.facebook.com%2F100%2Fvideos%2F301%2F&width=1280'></iframe>",)"
                           R"("stream_url":"rtmps://live-api-s.facebook.com:443/rtmp/301?s_bl=1&a=fb-SECRET-key"},)"
                           R"({"status":"VOD","id":"302","title":"Old","stream_url":"rtmps://x/rtmp/302?a=1"}]},"id":"100"})"},
        // The id twice in the stream URL, then without it, then a usable one.
        {"GET /v2.8/200/", R"({"live_videos":{"data":[{"status":"LIVE_NOW","id":"401","stream_url":"rtmps://x/rtmp/401?a=401"},)"
                           R"({"status":"LIVE_NOW","id":"404","stream_url":"rtmps://x/rtmp/key?a=1"},)"
                           R"({"status":"LIVE_NOW","id":"402","title":"Page show",)"
                           R"("stream_url":"rtmps://live-api-s.facebook.com:443/rtmp/402?s=1&a=fb-SECRET-pagekey"}]},"id":"200"})"},
        {"POST /v2.8/100/live_videos", R"({"id":"403","stream_url":"rtmps://x/rtmp/403?a=3"})"},
        {"POST /v2.8/402", R"({"success":true})"}, {"DELETE /v3.0/100/permissions", R"({"success":true})"},

        // Not sorted, and one template without the key placeholder.
        {"GET /kraken/ingests", R"({"ingests":[{"_id":24,"name":"EU: Amsterdam, NL","default":false,)"
                                R"("url_template":"rtmp://live-ams.twitch.tv/app/{stream_key}"},)"
                                R"({"_id":12,"name":"Asia: Singapore","url_template":"rtmp://live-sin.twitch.tv/app"}]})"},
        {"GET /kraken/channel", R"({"_id":44322889,"name":"kai","display_name":"Kai","stream_key":"live_44322889_SECRET"})"},
        {"POST /oauth2/revoke", "{}"},
    });
}

// Every line logged while the test runs, debug lines included; warnings are shown as well.
QStringList logged;
QtMessageHandler previousHandler = nullptr;
void keepLine(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    logged << text;
    if (type != QtDebugMsg && type != QtInfoMsg && previousHandler)
        previousHandler(type, context, text);
}

} // namespace

class TestSignedInServices : public QObject, private StreamingSetupFixture
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        startFixture("tst_signedinservices");
        QLocale::setDefault(QLocale(QStringLiteral("en_US")));
        QLoggingCategory::installFilter([](QLoggingCategory* all) { all->setEnabled(QtDebugMsg, true); });
        previousHandler = qInstallMessageHandler(keepLine);
    }
    void init()
    {
        QuillonEngine::clearEncodingCalls();
        QVERIFY(resetFixture());
        serveServices(m_service);
    }
    void cleanup()
    {
        const QString shown = dropFixture();
        QVERIFY2(shown.isEmpty(), qPrintable(shown));
        qputenv("QUILLON_YOUTUBE_CLIENTID", "test-client");
    }
    void cleanupTestCase()
    {
        qInstallMessageHandler(previousHandler);
        stopFixture();
        for (const QString& line : qAsConst(logged))
            QVERIFY2(!line.contains("SECRET"), qPrintable(line));
    }

    void signInPickAndStream_data()
    {
        QTest::addColumn<QString>("service");
        QTest::addColumn<QString>("page");     // the sign-in page the browser is given
        QTest::addColumn<QString>("redirect"); // where the page ends
        QTest::addColumn<QString>("list");     // the list the operator picks from, its entries, the pick
        QTest::addColumn<QStringList>("listed");
        QTest::addColumn<QStringList>("requests");
        QTest::addColumn<QString>("engine"); // URL and key the engine was given for the first entry; its watch page
        QTest::addColumn<QString>("revoke");
        const QString base = m_service.baseUrl();
        QTest::newRow("YouTube") << "YouTube (sign in)"
            << base + "/o/oauth2/auth?client_id=test-client&redirect_uri=" + loopback
                   + "&scope=https://www.googleapis.com/auth/youtube&response_type=code"
            << loopback + "?code=4/0Ab%2Bc&scope=youtube" << "channelSelect" << QStringList{"Match day"}
            << QStringList{"POST /o/oauth2/token? | form code=4%2F0Ab%2Bc&client_id=test-client&client_secret=test-secret&"
                           "redirect_uri=http%3A%2F%2Flocalhost%2Foauth2callback&grant_type=authorization_code",
                           broadcasts, "GET /youtube/v3/liveStreams?part=id,cdn&id=s1&" + ytToken,
                           "GET /youtube/v3/videos?part=snippet&id=b1&fields=items(id,snippet(categoryId,channelId,tags))&" + ytToken,
                           "GET /youtube/v3/videoCategories?part=snippet&regionCode=US&fields=items(id,snippet(assignable,title))&"
                               + ytToken}
            << "rtmp://a.rtmp.youtube.com/live2 yt-SECRET-key " + base + "/watch?v=b1"
            << "GET /o/oauth2/revoke?token=yt-SECRET-token";
        QTest::newRow("Facebook") << "Facebook (sign in)"
            << base + "/v2.8/dialog/oauth?client_id=test-client&redirect_uri=" + base + "/connect/login_success.html"
                   "&response_type=code&scope=manage_pages,publish_pages,public_profile,publish_actions,user_videos"
            << base + "/connect/login_success.html?code=fb-code#_=_" << "channelSelect"
            << QStringList{"Untitled", "Page show"}
            << QStringList{"GET /v2.8/oauth/access_token?client_id=test-client&redirect_uri=" + base
                               + "/connect/login_success.html&client_secret=test-secret&code=fb-code",
                           "GET /v2.8/me/?fields=accounts,name&access_token=fb-SECRET-user",
                           "GET /v2.8/100/" + fbVideos + "fb-SECRET-user", "GET /v2.8/200/" + fbVideos + "fb-SECRET-page"}
            << "rtmps://live-api-s.facebook.com:443/rtmp 301?s_bl=1&a=fb-SECRET-key https://www.facebook.com/100/videos/301/"
            << "DELETE /v3.0/100/permissions?access_token=fb-SECRET-user";
        QTest::newRow("Twitch") << "Twitch (sign in)"
            << base + "/kraken/oauth2/authorize?response_type=token&client_id=test-client&redirect_uri=" + loopback
                   + "&scope=user_read+channel_read+chat_login"
            << loopback + "#access_token=tw-SECRET-token&scope=user_read+channel_read+chat_login&token_type=bearer"
            << "serverSelect" << QStringList{"EU: Amsterdam, NL", "Asia: Singapore"}
            << QStringList{"GET /kraken/ingests?client_id=test-client",
                           "GET /kraken/channel | OAuth tw-SECRET-token | application/vnd.twitchtv.v3+json"}
            << "rtmp://live-ams.twitch.tv/app live_44322889_SECRET " + base + "/kai"
            << "POST /oauth2/revoke? | form client_id=test-client&token=tw-SECRET-token&";
    }
    void signInPickAndStream()
    {
        QFETCH(QString, service);
        QFETCH(QString, page);
        QFETCH(QString, redirect);
        QFETCH(QString, list);
        QFETCH(QStringList, listed);
        QFETCH(QStringList, requests);
        QFETCH(QString, engine);
        QFETCH(QString, revoke);
        signIn(service, QString());
        QVERIFY(webView() && webView()->window()->isVisible());
        QCOMPARE(m_cef.calls().filter("loadUrl").last(), "loadUrl " + page);
        // Pages on the way, the redirect without its grant among them, finish nothing.
        m_cef.navigate(webView(), page + "&step=2&error=interaction_required");
        m_cef.navigate(webView(), redirect.section(QRegularExpression("[?#]"), 0, 0) + "#scope=user_read");
        QVERIFY(m_service.requests().isEmpty() && webView()->window()->isVisible());
        m_cef.navigate(webView(), redirect);
        QVERIFY(!webView()->window()->isVisible());
        QCOMPARE(requestLines(m_service), requests);
        QTRY_COMPARE(m_form->button("authorize")->text(), QStringLiteral("Deauthorize"));

        QCOMPARE(m_form->items(list.toLatin1()), listed);
        QVERIFY(m_form->pick(list.toLatin1(), listed.first()));
        m_form->add();
        QVERIFY(m_dialog->encoding(true));
        const CodecModel::Streaming started = QuillonEngine::encodingCalls().last().preset.streaming();
        QCOMPARE(started.url + ' ' + started.key + ' ' + m_form->edit("sharingUrlInput")->text(), engine);
        m_dialog->encoding(false);

        // The host starts again: the account and the row come back without a request.
        m_form.reset();
        m_dialog.reset();
        m_service.clearRequests();
        StreamingManager restarted(m_stores->settings(), LicenseModel());
        open();
        m_form->rows()->setCurrentRow(0);
        QCOMPARE(m_form->combo("providerSelect")->currentText(), service);
        QCOMPARE(m_form->combo(list.toLatin1())->currentText(), listed.first());
        QCOMPARE(m_form->edit("streamUrl")->text(), engine.section(' ', 0, 0));
        QVERIFY(m_service.requests().isEmpty());

        // Deauthorising gives the token back and forgets the account, and the service's web session.
        m_cef.clearCalls();
        m_form->button("authorize")->click();
        QCOMPARE(requestLines(m_service), QStringList{revoke});
        QCOMPARE(m_cef.calls(), QStringList{"deleteCookies"});
        QTRY_COMPARE(m_form->button("authorize")->text(), QStringLiteral("Authorize"));
        QVERIFY(QDir(restarted.accountDirectory()).isEmpty() && MessageBox::shown().isEmpty());
        // The simple entry of the same name never took the account.
        QVERIFY(m_form->pickService(service.section(' ', 0, 0)));
        QVERIFY(m_form->combo("providerSelect")->currentData().value<Provider*>()->channels().isEmpty());
    }

    void events_data()
    {
        QTest::addColumn<QString>("service");
        QTest::addColumn<QString>("redirect");
        QTest::addColumn<QString>("action"); // the panel button; the event dialog is filled on add
        QTest::addColumn<QStringList>("requests");
        const QString base = m_service.baseUrl();
        const QString yt = loopback + "?code=c";
        const QString fb = base + "/connect/login_success.html?code=c";
        const QString inserted = R"("snippet":{"description":"Live","scheduledStartTime":"2030-05-01T18:30:00.000Z",)"
                                 R"("title":"Cup final"},"status":{"privacyStatus":"unlisted"}})";
        QTest::newRow("YouTube add") << "YouTube (sign in)" << yt << "channelAdd"
            << QStringList{"POST " + broadcastWrite + "{" + broadcastDetails + R"(,"id":"",)" + inserted,
                           "POST /youtube/v3/liveStreams?part=id,snippet,cdn,status&fields=cdn,contentDetails,etag,id,kind,"
                           "snippet,status&" + ytToken + R"( | application/json {"cdn":{"format":"","frameRate":"variable",)"
                           R"("ingestionType":"rtmp","resolution":"variable"},"snippet":{"channelId":"UC1","description":"Live",)"
                           R"("title":"Cup final"}})",
                           "POST /youtube/v3/liveBroadcasts/bind?part=contentDetails&fields=contentDetails,id,snippet,status&"
                               + ytToken + " | form id=b9&streamId=s9",
                           broadcasts};
        QTest::newRow("YouTube edit") << "YouTube (sign in)" << yt << "channelEdit"
            << QStringList{"PUT /youtube/v3/videos?part=snippet,contentDetails,fileDetails,player,processingDetails,"
                           "recordingDetails,statistics,status,suggestions&fields=id,snippet,status&" + ytToken
                               + R"( | application/json {"id":"b1","snippet":{"categoryId":"17","description":"Final",)"
                                 R"("tags":["final","cup"],"title":"Match day 2"},"status":{"privacyStatus":"unlisted"}})",
                           "PUT " + broadcastWrite + "{" + broadcastDetails + R"(,"id":"b1","snippet":{"description":"Final",)"
                               R"("scheduledStartTime":"2024-05-01T18:00:00.000Z","title":"Match day 2"},)"
                               R"("status":{"privacyStatus":"unlisted"}})",
                           broadcasts};
        QTest::newRow("YouTube remove") << "YouTube (sign in)" << yt << "channelRemove"
            << QStringList{"DELETE /youtube/v3/liveBroadcasts?id=b1&" + ytToken, broadcasts};
        const QString me = "GET /v2.8/me/?fields=accounts,name&access_token=fb-SECRET-user";
        QTest::newRow("Facebook add") << "Facebook (sign in)" << fb << "channelAdd"
            << QStringList{"POST /v2.8/100/live_videos? | form title=Cup%20final&description=Live&"
                           "privacy=%7B%22value%22%3A%22SELF%22%7D&stream_type=AMBIENT&access_token=fb-SECRET-user", me};
        QTest::newRow("Facebook edit") << "Facebook (sign in)" << fb << "channelEdit"
            << QStringList{"POST /v2.8/402? | form title=Page%20show%202&description=&value=EVERYONE&"
                           "access_token=fb-SECRET-page", me};
        QTest::newRow("Facebook end") << "Facebook (sign in)" << fb << "channelRemove"
            << QStringList{"POST /v2.8/402? | form end_live_video=true&access_token=fb-SECRET-page", me};
    }
    void events()
    {
        QFETCH(QString, service);
        QFETCH(QString, redirect);
        QFETCH(QString, action);
        QFETCH(QStringList, requests);
        signIn(service, redirect);
        // Adding goes to the page shown (the user) whatever the channel's owner.
        QVERIFY(action == "channelAdd" || m_form->pick("pageSelect", "Club Page") || !m_form->shown("pageContainer"));
        QVERIFY(m_form->pick("channelSelect", m_form->items("channelSelect").last()));
        const int before = m_service.requests().size();
        ModalDriver<EventDialog> driver([&](EventDialog* dialog) {
            auto* title = dialog->findChild<QLineEdit*>("title");
            title->setText(action == "channelEdit" ? title->text() + " 2" : "Cup final");
            if (action == "channelAdd") {
                dialog->findChild<QPlainTextEdit*>("decription")->setPlainText("Live");
                dialog->findChild<QDateEdit*>("startDateTime")->setDate(QDate(2030, 5, 1));
                dialog->findChild<QComboBox*>("startTime")->setCurrentText("18:30");
                auto* privacy = dialog->findChild<QComboBox*>("privacy");
                privacy->setCurrentIndex(privacy->count() - 1);
                dialog->findChild<QComboBox*>("streamtype")->setCurrentIndex(1);
            }
            dialog->accept();
        });
        MessageBox::setNextAnswer(QMessageBox::Yes);
        m_form->button(action.toLatin1())->click();
        QCOMPARE(driver.found(), action != "channelRemove");
        QCOMPARE(requestLines(m_service, before).mid(0, requests.size()), requests);
        QCOMPARE(MessageBox::shown().size(), action == "channelRemove" ? 1 : 0);
    }

    // A sign-in that goes wrong: the warning names the request and no account is kept.
    void badReplies_data()
    {
        QTest::addColumn<QString>("service");
        QTest::addColumn<QString>("redirect"); // none: the installation has no client for the service
        QTest::addColumn<QString>("reply");    // "METHOD /path body", HTML when the body starts with "<"
        QTest::addColumn<QString>("box");
        const QString yt = loopback + "?code=c";
        const QString fb = m_service.baseUrl() + "/connect/login_success.html";
        const QString tw = loopback + "#access_token=tw-SECRET-token";
        const QString unreadable = "|The service sent a reply that could not be read.";
        QTest::newRow("YouTube HTML page") << "YouTube (sign in)" << yt
            << "POST /o/oauth2/token <html><body>Bad Gateway</body></html>" << "authorize" + unreadable;
        QTest::newRow("YouTube expired token") << "YouTube (sign in)" << yt
            << R"(GET /youtube/v3/liveBroadcasts {"error":{"code":401,"message":"Invalid Credentials","status":"UNAUTHENTICATED"}})"
            << "channelObj|Invalid Credentials";
        QTest::newRow("YouTube items of the wrong shape") << "YouTube (sign in)" << yt
            << R"(GET /youtube/v3/liveStreams {"items":{"id":"s1"}})" << "streamKeyObj" + unreadable;
        QTest::newRow("YouTube denied") << "YouTube (sign in)" << loopback + "?error=access_denied" << QString()
                                        << "authorize|access_denied\n";
        QTest::newRow("YouTube without a client") << "YouTube (sign in)" << QString() << QString()
                                                  << "YouTube API|Signing in to YouTube API is not configured for this installation.";
        QTest::newRow("Facebook denied") << "Facebook (sign in)"
            << fb + "?error=access_denied&error_code=200&error_description=Permissions+error&error_reason=user_denied#_=_"
            << QString() << "userTokenObj|access_denied\nPermissions error";
        QTest::newRow("Facebook user without id") << "Facebook (sign in)" << fb + "?code=c"
                                                  << R"(GET /v2.8/me/ {"name":"Kai"})" << "pageTokenObj" + unreadable;
        QTest::newRow("Twitch denied") << "Twitch (sign in)"
            << loopback + "#error=access_denied&error_description=The+user+denied+you+access" << QString()
            << "authorize|access_denied\nThe user denied you access";
        QTest::newRow("Twitch revoked token") << "Twitch (sign in)" << tw
            << R"(GET /kraken/ingests {"error":"Unauthorized","status":401,"message":"invalid oauth token"})"
            << "serverObj|Unauthorized\n";
        QTest::newRow("Twitch channel without key") << "Twitch (sign in)" << tw << R"(GET /kraken/channel {"name":"kai"})"
                                                    << "streamKeyObj" + unreadable;
    }
    void badReplies()
    {
        QFETCH(QString, service);
        QFETCH(QString, redirect);
        QFETCH(QString, reply);
        QFETCH(QString, box);
        const QByteArray body = reply.section(' ', 2).toUtf8();
        HttpServer::Reply bad = HttpServer::json(body, body.startsWith('<') ? 502 : 400);
        bad.contentType = body.startsWith('<') ? "text/html" : "application/json";
        m_service.on(reply.section(' ', 0, 0).toLatin1(), reply.section(' ', 1, 1), bad);
        if (redirect.isEmpty())
            qputenv("QUILLON_YOUTUBE_CLIENTID", "");
        signIn(service, redirect);
        QVERIFY(!webView()->window()->isVisible());
        QCOMPARE(MessageBox::lastShown().title + '|' + MessageBox::lastShown().text, box);
        QVERIFY(QDir(m_stores->streamingManager().accountDirectory()).isEmpty());
        QVERIFY(m_form->widget("tabStreaming")->isEnabled());
    }

    // A signed-in account whose token expired: the lists it showed go with the failed reload.
    void expiredTokenOnReload()
    {
        signIn(QStringLiteral("Facebook (sign in)"), m_service.baseUrl() + "/connect/login_success.html?code=c");
        QCOMPARE(m_form->items("channelSelect"), (QStringList{"Untitled", "Page show"}));
        m_service.onJson("GET", "/v2.8/me/", R"({"error":{"message":"Error validating access token: Session has expired.",)"
                                             R"("type":"OAuthException","code":190}})", 400);
        QVERIFY(m_form->pick("pageSelect", "Club Page"));
        QCOMPARE(MessageBox::lastShown().title + '|' + MessageBox::lastShown().text,
                 QStringLiteral("pageTokenObj|Error validating access token: Session has expired."));
        QVERIFY(m_form->items("channelSelect").isEmpty() && m_form->items("pageSelect").isEmpty());
    }

    // A token the service no longer knows cannot be given back; asked, the dialog forgets it all the same.
    void expiredTokenForgotten()
    {
        m_service.onJson("GET", "/o/oauth2/revoke", R"({"error":"invalid_token","error_description":"Token expired"})", 400);
        signIn(QStringLiteral("YouTube (sign in)"), loopback + "?code=c");
        QTRY_COMPARE(m_form->button("authorize")->text(), QStringLiteral("Deauthorize"));
        MessageBox::setNextAnswer(QMessageBox::Ok);
        MessageBox::setNextAnswer(QMessageBox::Yes);
        m_form->button("authorize")->click();
        QCOMPARE(MessageBox::shown().size(), 2);
        QCOMPARE(MessageBox::shown().first().text, QStringLiteral("invalid_token\nToken expired"));
        QTRY_COMPARE(m_form->button("authorize")->text(), QStringLiteral("Authorize"));
        QVERIFY(QDir(m_stores->streamingManager().accountDirectory()).isEmpty());
    }

private:
    // Opens the dialog, picks the service, presses Authorize and lets the sign-in page end at
    // `redirect` (none: no page).
    void signIn(const QString& service, const QString& redirect)
    {
        open();
        QVERIFY(m_form->pickService(service));
        m_form->button("authorize")->click();
        if (!redirect.isEmpty())
            m_cef.navigate(webView(), redirect);
    }
    // The browser of the dialog's sign-in window.
    WebView* webView() const
    {
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (widget->inherits("WebDialog"))
                return widget->findChild<WebView*>("webView");
        return nullptr;
    }

    FakeCefManager m_cef;
};

QTEST_MAIN(TestSignedInServices)
#include "tst_signedinservices.moc"
