#pragma once

#define IDD_TEST 130
#define IDS_FORMAT 131
#define IDD_PAGE 132
#define IDC_MARK 133
