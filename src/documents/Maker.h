#pragma once

/// The maker's address, as documents carry it.
namespace norlaplan::maker {

constexpr const char* kName = "Varden Corporation";
constexpr const char* kCity = "Millbrook";
constexpr const char* kPhone = "1-800-555-0142";
constexpr const char* kFax = "1-800-555-0143";

}  // namespace norlaplan::maker
