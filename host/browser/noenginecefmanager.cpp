#include "browser/noenginecefmanager.h"

#include <QLoggingCategory>

Q_LOGGING_CATEGORY(lcNoEngine, "host.browser")

bool NoEngineCefManager::hasEngine() const
{
    return false;
}

BrowserManager* NoEngineCefManager::createBrowser(ICefCaptureCallback*)
{
    qCInfo(lcNoEngine) << "No browser engine is installed; no browser was created.";
    return nullptr;
}

void NoEngineCefManager::deleteBrowser(ICefCaptureCallback*) {}

BrowserManager* NoEngineCefManager::findBrowser(ICefCaptureCallback*) const
{
    return nullptr;
}

void NoEngineCefManager::loadUrl(ICefCaptureCallback*, const QString&) {}
void NoEngineCefManager::resized(ICefCaptureCallback*) {}
void NoEngineCefManager::mousePressEvent(ICefCaptureCallback*, QMouseEvent*) {}
void NoEngineCefManager::mouseReleaseEvent(ICefCaptureCallback*, QMouseEvent*) {}
void NoEngineCefManager::mouseMoveEvent(ICefCaptureCallback*, QMouseEvent*) {}
void NoEngineCefManager::mouseDoubleClickEvent(ICefCaptureCallback*, QMouseEvent*) {}
void NoEngineCefManager::wheelEvent(ICefCaptureCallback*, QWheelEvent*) {}
void NoEngineCefManager::keyPressEvent(ICefCaptureCallback*, QKeyEvent*) {}
void NoEngineCefManager::deleteCookies() {}
