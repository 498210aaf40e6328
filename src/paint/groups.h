#pragma once
// The ten graphics groups by number 1..10: their titles stand in the catalogue of types.

#include "paint/catalogue.h"
