#include "icefcapturecallback.h"

ICefCaptureCallback::~ICefCaptureCallback() = default;
