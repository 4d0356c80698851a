#pragma once

#include <TambleCore/Support/Precompiled.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
