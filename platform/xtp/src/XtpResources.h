#pragma once

/* Numbers of the toolkit's own resources. */

#define XTP_IDD_PRINTING 200
#define XTP_IDC_PRINT_DOCUMENT 201
#define XTP_IDC_PRINT_PRINTER 202
#define XTP_IDC_PRINT_PORT 203
#define XTP_IDC_PRINT_PAGE 204
