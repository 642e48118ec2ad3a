#include "records/media.h"

Media::~Media() = default;
