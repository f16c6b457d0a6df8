// Core Text is declared with what ApplicationServices brings along.
#pragma once

#include <ApplicationServices/ApplicationServices.h>
