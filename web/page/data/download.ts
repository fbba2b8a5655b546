/** Hands a file to the person: the browser puts it where downloads go. */
export function download(name: string, content: Blob): void {
  const link = document.createElement("a");
  const address = URL.createObjectURL(content);
  link.href = address;
  link.download = name;
  link.click();
  setTimeout(() => URL.revokeObjectURL(address), 60_000);
}
