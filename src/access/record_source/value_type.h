// The DAO types of computed columns by small fixed rules: operators, functions, unions.
#pragma once

#include <string_view>
#include <vector>

namespace tarrowin {

// DAO type numbers.
inline constexpr int kTypeUnknown = 0;  // of Null and of what nothing tells
inline constexpr int kTypeBoolean = 1;
inline constexpr int kTypeByte = 2;
inline constexpr int kTypeInteger = 3;
inline constexpr int kTypeLong = 4;
inline constexpr int kTypeCurrency = 5;
inline constexpr int kTypeSingle = 6;
inline constexpr int kTypeDouble = 7;
inline constexpr int kTypeDate = 8;
inline constexpr int kTypeBinary = 9;
inline constexpr int kTypeText = 10;
inline constexpr int kTypeOle = 11;
inline constexpr int kTypeMemo = 12;
inline constexpr int kTypeGuid = 15;
inline constexpr int kTypeBigInt = 16;
inline constexpr int kTypeDecimal = 20;

// DAO's Size of a computed column: bytes; 255 characters for text, 0 for Memo and OLE.
int sizeOfType(int type);

// The type that holds values of both: of IIf, of a union's columns. Unknown gives way.
int commonType(int a, int b);

// a op b for + - * / \ ^ and MOD (upper case); & and comparisons need no operands to be known.
int arithmeticType(std::string_view op, int a, int b);

// Whether it is one of SQL's aggregates over rows, Count to VarP.
bool isAggregate(std::string_view function);

// The type of a call; a function that is not known gives kTypeUnknown.
int functionType(std::string_view function, const std::vector<int>& arguments);

}  // namespace tarrowin
