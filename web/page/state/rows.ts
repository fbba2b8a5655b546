import { computed, signal } from "@preact/signals";
import { searchNames } from "../logic/object_search";
import { activeTake } from "./takes";

/** The objects of the take that is worked on that the search finds: rows of the list and of the timeline. */
export const search = signal("");
export const foundObjects = computed(() =>
  searchNames(activeTake.value?.info.objects ?? [], search.value),
);
