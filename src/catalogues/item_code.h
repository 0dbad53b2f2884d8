#pragma once

namespace kaldo {

/// The key of an item of the price list: the sales area's number and the item's number in three
/// digits, six digits in all. Longer item numbers count by their first three digits, and of areas
/// of four digits on the item's last digits are lost: such codes collide, and are then refused as
/// duplicates.
int itemCode(int tipoProd, int cveProd);

}  // namespace kaldo
