// What the build puts in the place of these names.
declare module 'kaldo-program' {
  export default function createKaldo<Program>(options: object): Promise<Program>;
}
declare module 'kaldo-embedded' {
  /** The program, packed with gzip, in base64. */
  export const program: string;
  /** The source of the worker. */
  export const worker: string;
  export const version: string;
}
declare module '*.txt' {
  const text: string;
  export default text;
}
