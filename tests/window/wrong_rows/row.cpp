#include "window/block_encoder.h"

using namespace window::encoder;

constexpr Key kKind[] = {{"Left", Type::i8}, {"Top", Type::i8}, {"Bold", false}, {"Text", Type::s}};

#if defined(ROW_right)
constexpr Entry kRow[] = {{"Left", 1}, {"Top", 2}, {"Text", "a"}};
#elif defined(ROW_short)
constexpr Entry kRow[] = {{"Left", 1}, {"Text", "a"}};
#elif defined(ROW_out_of_order)
constexpr Entry kRow[] = {{"Top", 2}, {"Left", 1}, {"Text", "a"}};
#elif defined(ROW_of_a_wrong_type)
constexpr Entry kRow[] = {{"Left", 1}, {"Top", "2"}, {"Text", "a"}};
#elif defined(ROW_unknown)
constexpr Entry kRow[] = {{"Left", 1}, {"Top", 2}, {"Text", "a"}, {"Tail", 3}};
#endif

constexpr std::size_t kLength = Write(nullptr, kKind, kRow);
constexpr auto kEncoded = Encode<kLength>(kKind, kRow);
