// Whether OLE is to be ended in a thread.
#pragma once

// Not by itself where a thread ends that the framework did not start: the system's loader is at work then.
void end_ole();
