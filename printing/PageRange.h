#pragma once

/// The pages of a document that a run prints, both ends included; backwards if `last` is below `first`. Pages count
/// from 1. No windows.
struct PageRange {
    int first = 0;
    int last = 0;

    static PageRange wholeDocument(int pagesCount);
    /// Cut at the end of the document only: what lies before its first page stays.
    static PageRange requested(int pagesCount, int fromPage, int toPage);

    int step() const { return last < first ? -1 : 1; }
    /// 0 where the one page is page 0, which is how a document without pages looks.
    int count() const;
};
