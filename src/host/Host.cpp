// The one set of platform services of this process. It is empty until the application, a tool or a test
// fills it.
#include "host/Host.h"

Host gHost;
