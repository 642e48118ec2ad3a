#include "browser/icefcapturecallback.h"

ICefCaptureCallback::~ICefCaptureCallback() = default;
