#include <OrtinControls/DrawContextBase.h>

VectorCanvas::DrawContextBase::~DrawContextBase() = default;
