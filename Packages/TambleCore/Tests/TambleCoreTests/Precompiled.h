#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <TambleCore/Support/Precompiled.h>
