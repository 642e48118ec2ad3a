#include "interface/outputinterface.h"

OutputInterface::~OutputInterface() = default;
