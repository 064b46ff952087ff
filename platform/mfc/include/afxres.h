#pragma once

/* Texts that the framework carries. A program may put its own in their place, under the same number. */

#define AFX_IDS_PRINTPAGENUM 61507 /* a format with one integer, the number of the page */
#define AFX_IDP_FAILED_TO_START_PRINT 61702
