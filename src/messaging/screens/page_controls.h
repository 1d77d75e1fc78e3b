#pragma once

#include "ui/page_controls.h"
