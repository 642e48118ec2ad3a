#include "browser/cefmanager.h"

#include "browser/noenginecefmanager.h"

namespace {
CefManager* installed = nullptr;
}

CefManager::~CefManager()
{
    if (installed == this)
        installed = nullptr;
}

CefManager* CefManager::instance()
{
    static NoEngineCefManager withoutEngine;
    return installed ? installed : &withoutEngine;
}

void CefManager::setInstance(CefManager* manager)
{
    installed = manager;
}
