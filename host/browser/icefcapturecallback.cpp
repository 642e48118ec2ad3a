#include "browser/icefcapturecallback.h"

ICefCaptureCallback::~ICefCaptureCallback() = default;

void ICefCaptureCallback::onLoadFailed(LoadFailure, const QString&) {}
