// The platform services of this process; empty until the application, a tool or a test fills them.
#include "host/Host.h"

Host gHost;
