// Library start of libQ9CfgUL.so. The exported entry points are declared in
// the public header and defined with the session frame.
#include "platform/ModuleDirectory.h"
