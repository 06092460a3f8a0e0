// The order server, to which the stores send their orders.
#pragma once

namespace varlo {

struct Shell;

// Whether there is an order server; tells the user when there is none.
[[nodiscard]] bool requireServer(Shell& shell);

// Shows the page of the order server in the browser; tells the user when there is no server.
void viewOrders(Shell& shell);

}  // namespace varlo
