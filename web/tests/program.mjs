// The program of this system, for what is compared with it or made by it.

import { existsSync } from "node:fs";
import path from "node:path";
import { fileURLToPath } from "node:url";

export const PROGRAM = path.resolve(path.dirname(fileURLToPath(import.meta.url)), "../../build/bin/orvane");

/** Whether it is there. */
export const HAS_PROGRAM = existsSync(PROGRAM);

/** Options of tests that need it. */
export const WITH_PROGRAM = { skip: HAS_PROGRAM ? false : "build/bin/orvane is not there: ./dev build makes it" };
