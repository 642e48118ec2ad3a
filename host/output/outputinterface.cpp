#include "outputinterface.h"

OutputInterface::~OutputInterface() = default;
