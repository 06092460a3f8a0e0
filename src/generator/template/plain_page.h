// A page made by its steps one after the other, each searching and changing the text: the meaning of a
// page, and the way for texts whose values bring variables of their own.
#pragma once

#include <string>

namespace varlo {

class ItemValues;
struct StoreNode;

// Fills `page`, which holds the template, with all variables of `node`, and copies its pictures. `shelf` is
// the expanded block of a shelf or a list; null when there is none.
void FillPlainPage(ItemValues& values, std::string& page, StoreNode& node, const std::string* shelf);

}  // namespace varlo
