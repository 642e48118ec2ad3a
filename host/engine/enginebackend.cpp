#include "engine/enginebackend.h"

EngineBackend::~EngineBackend() = default;
