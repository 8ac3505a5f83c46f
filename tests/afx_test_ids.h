#pragma once

#define IDD_TEST 130
#define IDS_FORMAT 131
