// What everybody needs who asks the X server: replies that are freed, and whether it has an
// extension.
#pragma once

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>

namespace holdem {

struct FreeReply {
  void operator()(void* reply) const { std::free(reply); }
};

// A reply, an error or an event; null when there is none.
template <typename Reply>
using Owned = std::unique_ptr<Reply, FreeReply>;

// Asked before any request to an extension: one that the server lacks would end the connection.
inline bool HasExtension(xcb_connection_t* connection, xcb_extension_t& extension) {
  const xcb_query_extension_reply_t* const data = xcb_get_extension_data(connection, &extension);
  return data != nullptr && data->present != 0;
}

}  // namespace holdem
