#pragma once

// Why the settings store's file lacks something that was set.
enum class KZSaveProblem {
  None,
  DiskFull,      // a quota or a limit for files included
  NotAllowed,    // the folder or its disk is read-only
  FileUnusable,  // what is in the file's place can neither be read nor moved: no later change is written
  Failed,        // anything else; the trace has the system's words
};
