#include <OrtinControls/IVectorPainter.h>

VectorCanvas::IVectorPainter::~IVectorPainter() = default;
