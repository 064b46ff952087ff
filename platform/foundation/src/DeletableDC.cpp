#include "OrtinFoundation/DeletableDC.h"

DeletableDC::DeletableDC(CDC* like, bool printing) {
    if (CreateCompatibleDC(like)) {
        m_bPrinting = printing;
        m_initialState = SaveDC();
    }
}

DeletableDC::~DeletableDC() {
    if (m_hDC != nullptr) {
        RestoreDC(m_initialState);
    }
}
