#pragma once

#define IDD_TEST 130
#define IDS_FORMAT 131
#define ID_FRAME_COMMAND 0x8001
#define ID_APP_COMMAND 0x8002
