/** What a batch lacks, before its files are chosen in vain. */
export function FolderNeed() {
  return (
    <p class="finding warning folder-need">
      <span class="severity">warning</span> A batch needs a BVK output folder, and none is named:
      nothing would be converted. Name one by its "Browse..." on the panel.
    </p>
  );
}
