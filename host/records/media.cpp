#include "media.h"

Media::~Media() = default;
