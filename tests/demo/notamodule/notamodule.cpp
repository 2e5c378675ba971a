#include "notamodule.h"

NotAModule::NotAModule() = default;
