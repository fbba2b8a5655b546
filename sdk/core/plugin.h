#pragma once

#include <cstdint>

#include "platform/handles.h"
#include "sdk/core/class_id.h"
#include "sdk/core/heap.h"

class ExpInterface;
class ImpInterface;
class Interface;
class IUtil;

// The base classes of plug-ins. The host makes instances through a class descriptor, calls them on
// the user-interface thread, and destroys them with `delete`; their memory is the host's heap.
// The order of the virtual operations is part of the border. No exception may leave any of them.

// Describes one plug-in class to the host. Static: lives from module load to unload.
class ClassDesc2 {
 public:
  virtual ~ClassDesc2() = default;

  // Not 0 when the user may see the class.
  virtual int IsPublic() = 0;

  // A new instance as a pointer to its plug-in base class (SceneImport, SceneExport, UtilityObj),
  // made void; the host owns it. Null when there is no memory.
  virtual void* Create(bool loading) = 0;

  // Texts stay valid until the next call of any descriptor of the module; null when a text is
  // missing.
  virtual const char* ClassName() = 0;
  virtual SuperClassId SuperClassID() = 0;
  virtual ClassId ClassID() = 0;
  virtual const char* Category() = 0;

  // The name that scripts use; the host's default is null.
  virtual const char* InternalName() { return nullptr; }

  // The module; the host's default is null.
  virtual HINSTANCE HInstance() { return nullptr; }

  // Not 0 when an instance may be created now.
  virtual int OkToCreate() { return 1; }

  // Which rollup pages are open at first, one bit each.
  virtual unsigned InitialRollupPageState() { return 0x7FFFFFFF; }

  // The text of resource `id`; the host's default is null.
  virtual const char* GetRsrcString(std::intptr_t /*id*/) { return nullptr; }
};

class SceneImport : public SkelderHeapOperators {
 public:
  virtual ~SceneImport() = default;

  virtual int ExtCount() = 0;
  virtual const char* Ext(int n) = 0;
  virtual const char* LongDesc() = 0;
  virtual const char* ShortDesc() = 0;
  virtual const char* AuthorName() = 0;
  virtual const char* CopyrightMessage() = 0;
  virtual const char* OtherMessage1() = 0;
  virtual const char* OtherMessage2() = 0;

  // Version number times 100.
  virtual unsigned Version() = 0;

  // Shows the about box over `owner`.
  virtual void ShowAbout(HWND owner) = 0;

  // Imports the file `name`. Prompts are suppressed when `suppress_prompts` is 1. Returns 1
  // when done or cancelled, 0 on failure.
  virtual int DoImport(const char* name, ImpInterface* import_interface, Interface* interface,
                       int suppress_prompts) = 0;

  // Whether the views zoom to the imported objects; -1: not implemented.
  virtual int ZoomExtents() { return -1; }
};

class SceneExport : public SkelderHeapOperators {
 public:
  virtual ~SceneExport() = default;

  virtual int ExtCount() = 0;
  virtual const char* Ext(int n) = 0;
  virtual const char* LongDesc() = 0;
  virtual const char* ShortDesc() = 0;
  virtual const char* AuthorName() = 0;
  virtual const char* CopyrightMessage() = 0;
  virtual const char* OtherMessage1() = 0;
  virtual const char* OtherMessage2() = 0;
  virtual unsigned Version() = 0;
  virtual void ShowAbout(HWND owner) = 0;

  // Exports to the file `name`. Returns 1 when done or cancelled, 0 on failure.
  virtual int DoExport(const char* name, ExpInterface* export_interface, Interface* interface,
                       int suppress_prompts, std::uint32_t options) = 0;

  // Whether extension number `extension` supports `options`.
  virtual int SupportsOptions(int /*extension*/, std::uint32_t /*options*/) { return 0; }
};

// A panel in the host's utility tab.
class UtilityObj : public SkelderHeapOperators {
 public:
  virtual ~UtilityObj() = default;

  // The user opens the utility: both pointers stay valid until EndEditParams.
  virtual void BeginEditParams(Interface* interface, IUtil* utility) = 0;

  // The user closes it.
  virtual void EndEditParams(Interface* interface, IUtil* utility) = 0;
};
