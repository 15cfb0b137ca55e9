// What nearly every rule file reads.
#pragma once

#include <algorithm>
#include <array>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <records/fields/fields.h>
#include <records/modVar.h>
#include <records/modWresCheck.h>
#include <records/world.h>
