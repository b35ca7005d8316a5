// The forms of the device programmer: which window stands behind each.
#pragma once

#include "core/platform.h"

#include <QWidget>

#include <memory>

namespace varnholt {

class MDI;

// Shows one of these forms, a modal one until it closes; Form keeps one that stays open. False for
// every other form.
bool Geraete_Formular_Zeigen(MDI& Haupt, Formular Welches, std::unique_ptr<QWidget>& Form);

} // namespace varnholt
