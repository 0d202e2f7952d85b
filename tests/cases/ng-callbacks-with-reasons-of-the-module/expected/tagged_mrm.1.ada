with tagged;
package tagged_mrm is
  package Widgets renames tagged;
end tagged_mrm;
