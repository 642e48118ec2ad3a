#include "chat/chatlistener.h"

ChatListener::~ChatListener() = default;
