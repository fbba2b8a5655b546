#pragma once

#include <optional>
#include <string>
#include <vector>

// The page that the desk stands in: it is told what is to be seen, and tells what its person does.
// web/worker/desk_protocol.ts says in which words.

namespace web {

// Tells the page `json`, an object that begins with what is told. Behind it go numbers, one list
// after the other, which are copied.
void Tell(const std::string& json, const std::vector<const std::vector<float>*>& lists = {});

// What the person does next, as JSON. When he is `awaited` this process sleeps until he has done
// something; otherwise only as long as it takes the page to bring what he has done already, and
// nothing comes when that is nothing.
[[nodiscard]] std::optional<std::string> NextEvent(bool awaited);

}  // namespace web
