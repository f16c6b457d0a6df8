// ApplicationServices.h declares Core Text.
#pragma once

#include <ApplicationServices/ApplicationServices.h>
