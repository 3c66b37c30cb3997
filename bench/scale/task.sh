#!/bin/sh
# A part of the list, as a task of a Slurm array job.
#SBATCH --cpus-per-task=1
#SBATCH --mem-per-cpu=1200M
#SBATCH --time=10
#SBATCH --open-mode=append
#SBATCH --output=logs/%a.log
part=$(printf %04d "$SLURM_ARRAY_TASK_ID")
exec quintar run --quiet --list manuals.xqq --base in -o out --files-from "parts/$part" --null \
    --jobs "$SLURM_CPUS_PER_TASK" --report "reports/$part.jsonl" --resume "reports/$part.jsonl"
